#pragma once

#include <optional>

namespace Quillet {

// The next of `nombre` ranks after `rang` that waits for the seller, from the first again after the last; never `rang`
// itself.
template <typename Attend>
std::optional<int> suivantDuTour(int rang, int nombre, Attend attend)
{
    for (int pas = 1; pas < nombre; ++pas)
        if (const int suivant = (rang + pas) % nombre; attend(suivant))
            return suivant;
    return std::nullopt;
}

} // namespace Quillet
