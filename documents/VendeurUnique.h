#pragma once

#include "model/Calcul.h"
#include "model/Reglages.h"

#include <optional>

namespace Quillet {

// With the name and the address that the rules of the settings ask for: a file changed by hand may lack them.
std::optional<IdentiteVendeur> identiteEntiere(Vendeur vendeur, const Reglages &reglages);

// Who answers, invoices and sends: none unless all books of the order belong to one seller whose identity is whole.
std::optional<IdentiteVendeur> vendeurUnique(const Calcul &calcul, const Reglages &reglages);

} // namespace Quillet
