#pragma once

#include "model/Quantite.h"

#include <optional>

// A figure of a page as a quantity. None when no data file may hold so much: once accepted, it could not be read back.
template <typename Unite>
std::optional<Quantite<Unite>> quantiteLue(std::optional<qint64> valeur)
{
    return valeur && *valeur <= Unite::maximum ? std::optional(Quantite<Unite>{*valeur}) : std::nullopt;
}
