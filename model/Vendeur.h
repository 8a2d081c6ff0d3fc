#pragma once

#include "model/Json.h"

#include <array>

enum class Vendeur { davrel, mireva };

template <>
inline constexpr std::array Json::valeursBrutes<Vendeur>{
    Json::ValeurBrute{Vendeur::davrel, "davrel"},
    Json::ValeurBrute{Vendeur::mireva, "mireva"},
};
