#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSize>
#include <QStringList>

// Colours and type shared by every screen: a bookseller's desk, by day and by night.
namespace Quillet::Theme {

enum class Mode { clair, sombre };
enum class Contraste { normal, renforce };

QPalette palette(Mode mode, Contraste contraste = Contraste::normal);
// Light or dark, told from the text and window colours.
Mode mode(const QPalette &palette);
// Told from the hairlines, which all may see then.
Contraste contraste(const QPalette &palette);

// Text of second rank, and the role lent to it: palettes have none for it.
constexpr QPalette::ColorRole roleSecondaire = QPalette::BrightText;
QColor secondaire(const QPalette &palette);
QColor filet(const QPalette &palette);       // hairlines
QColor carte(const QPalette &palette);       // raised groups and fields
QColor remplissage(const QPalette &palette); // quiet fill of capsules and tags
QColor surgissant(const QPalette &palette);  // menus and lists that come up over the rest
QColor accent(const QPalette &palette);      // filled accent, white text on it
QColor accent(Mode mode);                    // with normal contrast
QColor accentTexte(const QPalette &palette); // accent as a text or focus colour
QColor orange(const QPalette &palette);      // warnings
// The same by day and by night, white on it.
QColor bleu();     // the customs switch that is on
QColor bleuHaut(); // the chosen site, from its top
QColor bleuBas();  // to its bottom

// Wanted for texts and for titles, the best first; the system's own stands in.
QStringList famillesDesTextes();
QStringList famillesDesTitres();
// What the application's font is: the system's size, enlarged, at least 10 pt.
QFont police(double agrandissement = 1);
QFont legende();      // caption, 0.83
QFont encadre();      // callout, 0.92
QFont titre3();       // 1.2
QFont grandChiffre(); // what everything comes to
QFont titreEcran();   // a screen's own title, serif
QFont titreLivre();
QFont titreSection();
QFont titreCarte();

QFont enGras(QFont police, QFont::Weight graisse = QFont::DemiBold);

// A length drawn for text of 10 pt, in px, in proportion to the text that the user has chosen.
int aLaTaille(int longueur);
QSize aLaTaille(QSize taille);

constexpr int margeDePage = 40;    // on either side of a screen
constexpr int largeurDePage = 960; // what is read there needs no more
constexpr int rayonGroupe = 10;
constexpr int rayonControle = 8;
constexpr int rayonCouverture = 3;

} // namespace Quillet::Theme
