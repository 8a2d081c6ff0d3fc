#pragma once

#include <QKeySequence>
#include <QStringList>

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
    repondre,
    reinitialiser,
    rendre,
    copierLeSuivant,
    imprimer,
    enregistrer,
    chercherUnLivre,
    annuler,
    retablir,
    duControle, // keys of the control that has the focus, only listed here
};

struct Raccourci
{
    Geste geste;
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
// "Ouvrir la réponse (Ctrl+E)".
QString infobulle(Geste geste);
// Has the keys press the button as long as it is in sight, or else `page`; a tooltip that it has is left as it is.
void presser(QAbstractButton *bouton, Geste geste, QWidget *page = nullptr);

} // namespace Quillet::Raccourcis
