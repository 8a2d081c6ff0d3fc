#pragma once

#include "model/Quantite.h"

namespace Quillet {

// Whether a figure read of a public page should be looked at twice: it is nothing now, or more than a third away from
// the one it would replace.
template <typename Unite>
constexpr bool aVerifier(Quantite<Unite> avant, Quantite<Unite> lu)
{
    const Quantite<Unite> ecart = lu < avant ? avant - lu : lu - avant;
    return lu != avant && (lu <= Quantite<Unite>{} || ecart * 3 > avant);
}

} // namespace Quillet
