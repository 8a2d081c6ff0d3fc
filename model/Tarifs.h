#pragma once

#include "model/Json.h"
#include "model/Quantite.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

// The price of every weight up to and including `jusqua`.
struct Palier
{
    Grammes jusqua;
    Centimes prix;

    bool operator==(const Palier &) const = default;
};

enum class FamilleTarifs { france, outreMer, europe, monde };

// The grids of La Poste's page. Any other could not be found there, and every weekly reading would fail.
enum class ZoneColissimo { franceDomicile, om1, om2, ueSuisse, royaumeUni, zoneB, zoneC };

struct GrilleColissimo
{
    QString code; // raw value of a ZoneColissimo
    QString nomCourt;
    QString famille; // raw value of a FamilleTarifs; another text belongs to no family
    QString nom;
    QList<Palier> paliers; // ascending `jusqua`

    // None: the parcel is too heavy for this grid.
    [[nodiscard]] std::optional<Palier> palier(Grammes poids) const;
    // The countries that `nom` lists after `nomCourt`; none when it lists none.
    [[nodiscard]] std::optional<QString> pays() const;

    bool operator==(const GrilleColissimo &) const = default;
};

// One complete price list of La Poste.
struct TarifsColissimo
{
    QString validite; // first day in force, yyyy-mm-dd
    QString releve;   // day on which it was read, yyyy-mm-dd
    QUrl source;
    QList<GrilleColissimo> grilles;

    // The pointer lives as long as this record; null when no grid has the code.
    [[nodiscard]] const GrilleColissimo *grille(const QString &code) const;

    // The schedules' files, shipped and saved alike: one name, and the pattern of all.
    [[nodiscard]] QString nomDeFichier() const;
    static QString motifDeFichier();

    bool operator==(const TarifsColissimo &) const = default;
};

template <>
inline constexpr std::array Json::valeursBrutes<FamilleTarifs>{
    Json::ValeurBrute{FamilleTarifs::france, "france"},
    Json::ValeurBrute{FamilleTarifs::outreMer, "outre-mer"},
    Json::ValeurBrute{FamilleTarifs::europe, "europe"},
    Json::ValeurBrute{FamilleTarifs::monde, "monde"},
};

template <>
inline constexpr std::array Json::valeursBrutes<ZoneColissimo>{
    Json::ValeurBrute{ZoneColissimo::franceDomicile, "france-domicile"},
    Json::ValeurBrute{ZoneColissimo::om1, "om1"},
    Json::ValeurBrute{ZoneColissimo::om2, "om2"},
    Json::ValeurBrute{ZoneColissimo::ueSuisse, "ue-suisse"},
    Json::ValeurBrute{ZoneColissimo::royaumeUni, "royaume-uni"},
    Json::ValeurBrute{ZoneColissimo::zoneB, "zone-b"},
    Json::ValeurBrute{ZoneColissimo::zoneC, "zone-c"},
};

template <>
inline constexpr auto Json::champs<Palier> = std::tuple{
    Champ{"jusqua", &Palier::jusqua},
    Champ{"prix", &Palier::prix},
};

template <>
inline constexpr auto Json::champs<GrilleColissimo> = std::tuple{
    Champ{"code", &GrilleColissimo::code},       Champ{"nomCourt", &GrilleColissimo::nomCourt},
    Champ{"famille", &GrilleColissimo::famille}, Champ{"nom", &GrilleColissimo::nom},
    Champ{"paliers", &GrilleColissimo::paliers},
};

template <>
inline constexpr auto Json::champs<TarifsColissimo> = std::tuple{
    Champ{"validite", &TarifsColissimo::validite},
    Champ{"releve", &TarifsColissimo::releve},
    Champ{"source", &TarifsColissimo::source},
    Champ{"grilles", &TarifsColissimo::grilles},
};
