#pragma once

#include "model/Calcul.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/commande/RangeeMontant.h"

namespace Quillet {

class Commande;
class ChampGrammes;
class Choix;
struct Donnees;

// The weights, the packaging, the weighed parcel and what to beware of.
class SectionPoids : public Formulaire::Section
{
    Q_OBJECT

public:
    // `donnees` are read each time the screen is brought up to date.
    SectionPoids(const Donnees &donnees, Commande &commande, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    void proposerLesEmballages();
    void montrerPoidsCalcule(const Calcul &calcul);
    void montrerAvertissements(const Calcul &calcul);

    const Donnees &donnees_;
    Commande &commande_;
    RangeeMontant poidsLivres_;
    Choix *emballage_;
    QList<Emballage> proposes_;
    ChampGrammes *poidsLibre_;
    QWidget *rangeePoidsLibre_;
    RangeeMontant poidsCalcule_;
    ChampGrammes *poidsPese_;
    RangeeMontant palier_;
    QWidget *avertissements_;
    QList<TextesRecapitulatif::Avertissement> avertissementsMontres_;
};

} // namespace Quillet
