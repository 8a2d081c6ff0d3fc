#pragma once

#include "model/Donnees.h"

// How the sellers are called on the screens.
namespace Quillet::NomsVendeurs {

// The short name that the seller chose, else the place's: "Davrel", "Mireva". Own data never call a seller by a name of
// the example's: there the one of the documents comes first.
QString court(Vendeur vendeur, const Donnees &donnees);
// "les livres de Davrel et ceux de Mireva"
QString livresDeChacun(const Donnees &donnees);
// The name on the seller's documents; the short one when the seller has no identity.
QString complet(Vendeur vendeur, const Donnees &donnees);
// The seller's web site; the short name when the seller has none.
QString site(Vendeur vendeur, const Donnees &donnees);

} // namespace Quillet::NomsVendeurs
