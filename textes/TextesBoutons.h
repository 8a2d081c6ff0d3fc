#pragma once

#include "model/PrixBouton.h"

#include <QString>

// What the books' screen says of the PayPal buttons: texts only, laid out by the widgets.
namespace Quillet::TextesBoutons {

// One button of a book.
struct Ligne
{
    QString destination; // as it is called in PayPal
    QString palier;      // "jusqu’à 500 g · envoi 7,59 €"; empty without a price
    QString actuel;      // "—": none recorded
    QString calcule;     // "—": no price
    QString ecart;       // "+0,15 €"; empty when there is nothing to compare
    PrixBouton::Etat etat = PrixBouton::Etat::sansPrix;
    QString etatEnMots;
    QString aCopier; // the computed price as PayPal takes it; empty without one
    bool peutReporter = false;
    bool peutGarder = false;

    bool operator==(const Ligne &) const = default;
};

QList<Ligne> lignes(const QList<PrixBouton> &boutons, const Livre &livre, const TarifsColissimo &tarifs);
// "3 à reporter", where there is little room.
QString aReporter(qsizetype boutons);
// "3 prix à reporter"
QString nombreAReporter(qsizetype boutons);
// The same for one book, or why there is nothing to report.
QString situation(const Livre &livre, qsizetype aReporter);
// "14 livres · 12 prix à reporter", of the whole catalogue.
QString bilan(qsizetype livres, qsizetype aReporter);

} // namespace Quillet::TextesBoutons
