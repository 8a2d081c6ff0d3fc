#pragma once

#include "echanges/ListeDeLivres.h"

#include <QDate>
#include <QString>

// What is said of a list of books before it is taken.
namespace Quillet::TextesListe {

// "2 livres à ajouter, 1 à changer, 3 sans changement ; 1 ligne refusée."
QString resume(const ListeDeLivres &liste);
// "Colonnes lues : Titre, Auteur." Then those that are not, maybe none.
QString colonnes(const ListeDeLivres &liste);
// Of the button: "Prendre 3 livres".
QString prendre(const ListeDeLivres &liste);
// Of the history: "liste de 3 livres".
QString geste(const ListeDeLivres &liste);

struct Rangee
{
    RangeeDeListe::Sort sort;
    QString titre;  // of the book
    QString ligne;  // "ligne 12"
    QString detail; // what is new, what becomes of what, or why not
};
// What has something to say: what is refused first, then what changes, then what is new.
QList<Rangee> rangees(const ListeDeLivres &liste, const Reglages &reglages);
// How a row is heard.
QString dite(const Rangee &rangee);

QString nomDeFichier(QDate jour);

} // namespace Quillet::TextesListe
