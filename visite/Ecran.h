#pragma once

#include <QString>

class QLabel;
class QWidget;

// Finds the controls of a window by what a screen reader says of them, and works them as a person does. Each returns
// false, and says which control is missing, when there is none.
namespace Quillet::Ecran {

// The first control that can be seen and has this name (or text); the name may go on after a comma: "Le Phare de sel"
// finds "Le Phare de sel, 18,00 €". Null when there is none.
QWidget *controle(const QWidget *fenetre, const QString &nom);
bool cliquer(QWidget *fenetre, const QString &nom);
// In the menus, as it reads there.
bool choisirAuMenu(const QWidget *fenetre, const QString &entree);
// In place of what the field holds.
bool taper(QWidget *fenetre, const QString &nom, const QString &texte);
bool choisir(QWidget *fenetre, const QString &nom, const QString &entree);
// Scrolls until the control can be seen.
bool defiler(QWidget *fenetre, const QString &nom);
// The label in sight that says just this; null when none does.
QLabel *etiquette(const QWidget *fenetre, const QString &texte);
// Whether there is one.
bool montre(const QWidget *fenetre, const QString &texte);
// The text on the right of a label; empty when the label is not on the screen.
QString valeurEnFaceDe(const QWidget *fenetre, const QString &libelle);

} // namespace Quillet::Ecran
