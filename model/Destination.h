#pragma once

#include "model/Json.h"
#include "model/Langue.h"
#include "model/Tarifs.h"

#include <QString>

#include <optional>

namespace Quillet {

enum class RegionPaypal { eee, royaumeUni, autres };

constexpr const char *valeurBrute(RegionPaypal region)
{
    switch (region) {
    case RegionPaypal::eee:
        return "eee";
    case RegionPaypal::royaumeUni:
        return "royaume-uni";
    case RegionPaypal::autres:
        return "autres";
    }
    return nullptr;
}

using CodeDestination = Cle<struct Destination>;

// Where a parcel goes: its labels, its Colissimo grid, its PayPal region and its customs rule.
struct Destination
{
    CodeDestination code;
    QString libelleCourt;
    QString libelleCourtEn;
    QString valeurPaypal; // what stands for this destination in the sellers' PayPal buttons
    QString libelleFr;
    QString libelleEn;
    CodeGrille grille;
    RegionPaypal regionPaypal = RegionPaypal::eee;
    bool douane = false;
    std::optional<QString> douaneSauf; // territories outside the EU customs area

    [[nodiscard]] const QString &libelleCourtEnLangue(Langue langue) const
    {
        switch (langue) {
        case Langue::francais:
            return libelleCourt;
        case Langue::anglais:
            return libelleCourtEn;
        }
        Q_UNREACHABLE();
    }
    // `horsUE` counts only where some territories are an exception.
    [[nodiscard]] bool douaneRequise(bool horsUE) const { return douane || (douaneSauf && horsUE); }

    bool operator==(const Destination &) const = default;
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

} // namespace Quillet
