#pragma once

#include "model/Json.h"
#include "model/Langue.h"

#include <QString>

#include <optional>

enum class RegionPaypal { eee, royaumeUni, autres };

// Where a parcel goes: its labels, its Colissimo grid, its PayPal region and its customs rule.
struct Destination
{
    QString code;
    QString libelleCourt;
    QString libelleCourtEn;
    QString valeurPaypal; // what stands for this destination in the sellers' PayPal buttons
    QString libelleFr;
    QString libelleEn;
    QString grille; // code of a GrilleColissimo
    RegionPaypal regionPaypal = RegionPaypal::eee;
    bool douane = false;
    std::optional<QString> douaneSauf; // territories outside the EU customs area

    [[nodiscard]] QString libelleCourtEnLangue(Langue langue) const
    {
        return langue == Langue::anglais ? libelleCourtEn : libelleCourt;
    }
    // `horsUE` counts only where some territories are an exception.
    [[nodiscard]] bool douaneRequise(bool horsUE) const { return douane || (douaneSauf && horsUE); }

    bool operator==(const Destination &) const = default;
};

template <>
inline constexpr std::array Json::valeursBrutes<RegionPaypal>{
    Json::ValeurBrute{RegionPaypal::eee, "eee"},
    Json::ValeurBrute{RegionPaypal::royaumeUni, "royaume-uni"},
    Json::ValeurBrute{RegionPaypal::autres, "autres"},
};

template <>
inline constexpr auto Json::champs<Destination> = std::tuple{
    Champ{"code", &Destination::code},
    Champ{"libelleCourt", &Destination::libelleCourt},
    Champ{"libelleCourtEn", &Destination::libelleCourtEn},
    Champ{"valeurPaypal", &Destination::valeurPaypal},
    Champ{"libelleFr", &Destination::libelleFr},
    Champ{"libelleEn", &Destination::libelleEn},
    Champ{"grille", &Destination::grille},
    Champ{"regionPaypal", &Destination::regionPaypal},
    Champ{"douane", &Destination::douane},
    Champ{"douaneSauf", &Destination::douaneSauf},
};
