#pragma once

#include "model/Reglages.h"

// How the sellers are called on the screens.
namespace Quillet::NomsVendeurs {

// "Davrel", "Mireva".
QString court(Vendeur vendeur);
// "les livres de Davrel et ceux de Mireva"
QString livresDeChacun();
// The name on the seller's documents; the short one when the seller has no identity.
QString complet(Vendeur vendeur, const Reglages &reglages);
// The seller's web site; the short name when the seller has none.
QString site(Vendeur vendeur, const Reglages &reglages);

} // namespace Quillet::NomsVendeurs
