#pragma once

#include "model/Json.h"

#include <array>

// The two sellers' places; the names that documents show are data.
enum class Vendeur { davrel, mireva };

// In the order in which screens name them.
inline constexpr std::array tousLesVendeurs{Vendeur::davrel, Vendeur::mireva};

template <>
inline constexpr std::array Json::valeursBrutes<Vendeur>{
    Json::ValeurBrute{Vendeur::davrel, "davrel"},
    Json::ValeurBrute{Vendeur::mireva, "mireva"},
};
