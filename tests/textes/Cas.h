#pragma once

#include "model/Calcul.h"
#include "tests/Banc.h"

namespace Quillet {

// One order over a small catalogue.
struct Cas
{
    Banc banc;
    BonDeCommande bon;

    [[nodiscard]] Calcul calcul() const { return Calcul::de(banc.donnees(), bon, jourDuBanc); }
};

} // namespace Quillet
