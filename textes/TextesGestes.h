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
// Of a field that goes by this name on a form: "titre de « Le Phare de sel »", "ISBN de…".
QString champ(const QString &libelle, const Livre &livre);
// Of several fields at once.
QString modification(const Livre &livre);
QString ajout(const Livre &livre);
QString retrait(const Livre &livre);
QString place(const Livre &livre);

} // namespace Quillet::TextesGestes
