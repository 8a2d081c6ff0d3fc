#pragma once

#include "composants/Formulaire.h"
#include "model/Calcul.h"
#include "model/Pays.h"

namespace Quillet {

class Alerte;
class ChampAPropositions;
class Commande;
class Choix;
class Interrupteur;
class Libelle;
struct Donnees;

// Where the parcel goes, and whether customs want a declaration.
class SectionDestination : public Formulaire::Section
{
    Q_OBJECT

public:
    // `donnees` are read each time the section is brought up to date.
    SectionDestination(const Donnees &donnees, Commande &commande, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

signals:
    // What is to be known of the country asked for has just been written there.
    void remarquee(QWidget *remarque);

private:
    void proposerLesDestinations();
    void envoyer(const Pays &pays);
    void remarquer(); // of the order's country, in place of what a search has said

    const Donnees &donnees_;
    Commande &commande_;
    ChampAPropositions *recherche_;
    QList<Pays> trouves_; // proposed under it
    Alerte *remarque_;
    Choix *destination_;
    QList<Destination> proposees_;
    Libelle *nomComplet_;
    Interrupteur *horsUE_;
    Formulaire::Rangee *rangeeHorsUE_;
    Libelle *declaration_;
    Formulaire::Rangee *rangeeDeclaration_;
};

} // namespace Quillet
