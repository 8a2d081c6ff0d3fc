#pragma once

#include "composants/Formulaire.h"
#include "model/Calcul.h"

namespace Quillet {

class Alerte;
class Commande;
class ChampACopier;
class ChoixLangue;
class LigneDeTexte;
struct Donnees;

// What the seller pastes into PayPal to create the payment link, in the buyer's language.
class SectionLien : public Formulaire::Section
{
    Q_OBJECT

public:
    // `donnees` are read each time the section is brought up to date.
    SectionLien(const Donnees &donnees, Commande &commande, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    const Donnees &donnees_;
    Commande &commande_;
    ChoixLangue *langue_;
    LigneDeTexte *pays_;
    Formulaire::RangeeHaute *rangeePays_;
    Alerte *zone_;
    ChampACopier *nomDeLObjet_;
    ChampACopier *description_;
    ChampACopier *prix_;
    ChampACopier *retour_;
};

} // namespace Quillet
