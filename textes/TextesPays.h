#pragma once

#include "model/Donnees.h"

#include <QList>
#include <QString>

// What the search for a country finds, and what is said of a country.
namespace Quillet::TextesPays {

// Of these, by the beginning of any word of any of their names, the likeliest first; nothing for an empty text.
QList<Pays> trouves(const QList<Pays> &pays, const QString &recherche);
// In the list of what was found: "Guadeloupe · Outre-mer OM1".
QString proposition(const Pays &pays, const Donnees &donnees);
// Of a search that finds none.
QString introuvable(const QString &recherche);
// That nobody says which destination serves it.
QString nonEtabli(const Pays &pays);
// That the buyer will read the name of a zone, for want of a country; empty when that is no zone's.
QString zone(const QString &libelleCourt, const QList<Pays> &pays);

} // namespace Quillet::TextesPays
