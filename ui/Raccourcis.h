#pragma once

#include <QKeySequence>
#include <QStringList>

#include <functional>
#include <optional>

class QAbstractButton;
class QWidget;

// The keys of the program, in one place: windows bind them, a sheet lists them, tooltips end with them.
namespace Quillet::Raccourcis {

enum class Geste {
    aide,
    quitter,
    zoneSuivante,
    zonePrecedente,
    chercherUnPays,
    etapeSuivante,
    repondre,
    reinitialiser,
    rendre,
    copierLeSuivant,
    imprimer,
    enregistrer,
    chercherUnLivre,
    ajouterUnLivre,
    modifierLeLivre,
    dupliquerLeLivre,
    retirerLeLivre,
    monterLeLivre,
    descendreLeLivre,
    livrePrecedent,
    livreSuivant,
    annuler,
    retablir,
};

struct Raccourci
{
    std::optional<Geste> geste; // none: keys of the control that has the focus, only listed
    QList<QKeySequence> touches;
    QString effet;
    QStringList dites = {}; // what is listed of them; empty: all

    // "Ctrl+E", one for each way to do it.
    [[nodiscard]] QStringList enTexte() const;
};

struct Groupe
{
    QString titre;
    QList<Raccourci> raccourcis;
};

QList<Groupe> table();

QList<QKeySequence> touches(Geste geste);
// Tells of the keys, on a tooltip ("Ouvrir la réponse (Ctrl+E)") and aloud; what the control tells already is left as
// it is.
void dire(QWidget *controle, Geste geste);
// Binds the keys while `page` is in sight.
void lier(QWidget *page, Geste geste, const std::function<void()> &faire);
// Has them press the button while `page` is in sight, without one the button.
void presser(QAbstractButton *bouton, Geste geste, QWidget *page = nullptr);

} // namespace Quillet::Raccourcis
