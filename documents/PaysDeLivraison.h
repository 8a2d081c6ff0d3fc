#pragma once

#include "model/BonDeCommande.h"
#include "model/Donnees.h"

// The country that a buyer reads of, as the order names it.
namespace Quillet::PaysDeLivraison {

// The order sent there: destination, customs exception and the country's name in the buyer's language. None when the
// country's destination is not settled, or not among the data's.
std::optional<BonDeCommande> envoyee(BonDeCommande bon, const Pays &pays, const Donnees &donnees);

// The order in another language; a country that was found, and not typed over, changes its name with it.
BonDeCommande ecrite(BonDeCommande bon, Langue langue, const QList<Pays> &pays);

// The country of the list that the order names, if that is where it goes.
std::optional<Pays> deLaListe(const BonDeCommande &bon, const QList<Pays> &pays);

} // namespace Quillet::PaysDeLivraison
