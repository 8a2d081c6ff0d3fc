#pragma once

#include "model/Livre.h"

#include <QString>

// What is done to a book, in the words in which it is undone.
namespace Quillet::TextesGestes {

// "prix de « Le Phare de sel »", and so on.
QString prix(const Livre &livre);
QString poids(const Livre &livre);
QString disponibilite(const Livre &livre);
QString garde(const Livre &livre);
QString report(const Livre &livre, qsizetype boutons);
QString retour();

} // namespace Quillet::TextesGestes
