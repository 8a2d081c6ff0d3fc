#pragma once

#include "echanges/ColonneDeListe.h"
#include "model/Livre.h"
#include "model/Reglages.h"

#include <QString>

// What stands in a list, of one book in one column.
namespace Quillet::CelluleDeListe {

// As a French spreadsheet takes it: 18,50, 355, oui. Empty for what the book does not have.
QString ecrite(const Livre &livre, ColonneDeListe colonne, const Reglages &reglages);

// Puts it into the book; an empty cell leaves the book as it is. The sentence that refuses it, empty when none does.
QString lire(const QString &cellule, ColonneDeListe colonne, const Reglages &reglages, Livre &livre);

} // namespace Quillet::CelluleDeListe
