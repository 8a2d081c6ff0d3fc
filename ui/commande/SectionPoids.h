#pragma once

#include "model/Calcul.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/commande/RangeeMontant.h"

namespace Quillet {

class Commande;
class ChampGrammes;
class Choix;

// The weights, the packaging, the weighed parcel and what to beware of.
class SectionPoids : public Formulaire::Section
{
    Q_OBJECT

public:
    SectionPoids(const QList<Emballage> &emballages, Commande &commande, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    void montrerPoidsCalcule(const Calcul &calcul);
    void montrerAvertissements(const Calcul &calcul);

    Commande &commande_;
    RangeeMontant poidsLivres_;
    Choix *emballage_;
    ChampGrammes *poidsLibre_;
    QWidget *rangeePoidsLibre_;
    RangeeMontant poidsCalcule_;
    ChampGrammes *poidsPese_;
    RangeeMontant palier_;
    QWidget *avertissements_;
    QList<TextesRecapitulatif::Avertissement> avertissementsMontres_;
};

} // namespace Quillet
