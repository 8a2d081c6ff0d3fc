#pragma once

#include "composants/Formulaire.h"
#include "model/Calcul.h"
#include "model/Suivi.h"

namespace Quillet {

class Alerte;
class Commande;
class ChampACopier;
class ChoixLangue;
class Libelle;
class LigneDeTexte;
struct Donnees;

// What the seller pastes into PayPal to create the payment link, in the buyer's language.
class SectionLien : public Formulaire::Section
{
    Q_OBJECT

public:
    // `donnees` and `suivi` are read each time the section is brought up to date.
    SectionLien(const Donnees &donnees, Commande &commande, const Suivi &suivi, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

signals:
    void creationDemandee();
    void copie(const TexteACopier &texte);
    // By the button that goes from one text to the next.
    void copieALaSuite(QWidget *rangee);

private:
    void copierLeSuivant();
    [[nodiscard]] QList<ChampACopier *> champs() const; // in sight
    [[nodiscard]] QList<TexteACopier> textes() const;   // of theirs

    const Donnees &donnees_;
    Commande &commande_;
    const Suivi &suivi_;
    ChoixLangue *langue_;
    LigneDeTexte *pays_;
    Formulaire::RangeeHaute *rangeePays_;
    Alerte *zone_;
    ChampACopier *nomDeLObjet_;
    ChampACopier *description_;
    ChampACopier *prix_;
    ChampACopier *retour_;
    QWidget *aLaSuite_;
    Libelle *tour_;
};

} // namespace Quillet
