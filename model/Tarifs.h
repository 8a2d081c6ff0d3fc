#pragma once

#include "model/Json.h"
#include "model/Quantite.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace Quillet {

// The price of every weight up to and including `jusqua`.
struct Palier
{
    Grammes jusqua;
    Centimes prix;

    bool operator==(const Palier &) const = default;
};

enum class FamilleTarifs { france, outreMer, europe, monde };

constexpr const char *valeurBrute(FamilleTarifs famille)
{
    switch (famille) {
    case FamilleTarifs::france:
        return "france";
    case FamilleTarifs::outreMer:
        return "outre-mer";
    case FamilleTarifs::europe:
        return "europe";
    case FamilleTarifs::monde:
        return "monde";
    }
    return nullptr;
}

// The grids of La Poste's page. Any other could not be found there, and every weekly reading would fail.
enum class ZoneColissimo { franceDomicile, om1, om2, ueSuisse, royaumeUni, zoneB, zoneC };

constexpr const char *valeurBrute(ZoneColissimo zone)
{
    switch (zone) {
    case ZoneColissimo::franceDomicile:
        return "france-domicile";
    case ZoneColissimo::om1:
        return "om1";
    case ZoneColissimo::om2:
        return "om2";
    case ZoneColissimo::ueSuisse:
        return "ue-suisse";
    case ZoneColissimo::royaumeUni:
        return "royaume-uni";
    case ZoneColissimo::zoneB:
        return "zone-b";
    case ZoneColissimo::zoneC:
        return "zone-c";
    }
    return nullptr;
}

using CodeGrille = Cle<ZoneColissimo>;

struct GrilleColissimo
{
    CodeGrille code;
    QString nomCourt;
    Cle<FamilleTarifs> famille; // without case: belongs to no family
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
    Jour validite; // first day in force
    Jour releve;   // day on which it was read
    QUrl source;
    QList<GrilleColissimo> grilles;

    // Screens show every tier: more than this, six times what La Poste has, is no price list.
    static constexpr qsizetype paliersMaximaux = 300;
    [[nodiscard]] qsizetype nombreDePaliers() const;

    // The pointer lives as long as this record; null when no grid has the code.
    [[nodiscard]] const GrilleColissimo *grille(const CodeGrille &code) const;

    // The schedules' files, shipped and saved alike: one name, and the pattern of all.
    [[nodiscard]] QString nomDeFichier() const;
    static QString motifDeFichier();

    bool operator==(const TarifsColissimo &) const = default;
};

// Refuses more tiers than there may be.
namespace Json {
void lire(const QJsonValue &json, const Lieu &lieu, TarifsColissimo &valeur);
}

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

} // namespace Quillet
