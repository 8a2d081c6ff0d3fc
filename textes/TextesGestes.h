#pragma once

#include "model/Echec.h"
#include "model/Livre.h"

#include <QString>

// What is done to a book, in the words in which it is undone, and that a change was not.
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
// Of anything: the change could not be written.
QString nonEnregistre(const Echec &echec);

} // namespace Quillet::TextesGestes
