#pragma once

#include "model/Json.h"

// The language in which a buyer is answered.
enum class Langue { francais, anglais };

template <>
inline constexpr std::array Json::valeursBrutes<Langue>{
    Json::ValeurBrute{Langue::francais, "francais"},
    Json::ValeurBrute{Langue::anglais, "anglais"},
};
