#pragma once

#include "composants/Formulaire.h"
#include "model/Calcul.h"

namespace Quillet {

class Commande;
class Choix;
class Interrupteur;
class Libelle;

// Where the parcel goes, and whether customs want a declaration.
class SectionDestination : public Formulaire::Section
{
    Q_OBJECT

public:
    SectionDestination(const QList<Destination> &destinations, Commande &commande, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    Commande &commande_;
    Choix *destination_;
    Libelle *nomComplet_;
    Interrupteur *horsUE_;
    Formulaire::Rangee *rangeeHorsUE_;
    Libelle *declaration_;
    Formulaire::Rangee *rangeeDeclaration_;
};

} // namespace Quillet
