#pragma once

#include "model/Calcul.h"
#include "model/Reglages.h"

#include <optional>

namespace Quillet {

// Who answers, invoices and sends: none unless all books of the order belong to one seller whose identity is known.
std::optional<IdentiteVendeur> vendeurUnique(const Calcul &calcul, const Reglages &reglages);

} // namespace Quillet
