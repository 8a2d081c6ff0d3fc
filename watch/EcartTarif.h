#pragma once

#include "model/Donnees.h"

#include <QList>
#include <QString>

#include <optional>

namespace Quillet {

// One tier whose price is not the same in two schedules.
struct EcartTarif
{
    GrilleColissimo grille; // of the new schedule
    Grammes jusqua;
    std::optional<Centimes> avant; // none: the old schedule has no such tier
    std::optional<Centimes> apres; // none: the new one has it no more

    // Of the old price, to the nearest hundredth of a percent, halves away from zero. None without both prices, or
    // from a price of nothing.
    [[nodiscard]] std::optional<Taux> variation() const;
    // Whether it should be looked at twice: the tier is gone, its price is hard to believe beside the old one or, for
    // a new tier, between those of the lighter and the heavier one.
    [[nodiscard]] bool aVerifier() const;
    // "zone-b-2000": of one list, no two are the same.
    [[nodiscard]] QString id() const;

    // By grid of the new schedule, in its order, then by weight; a grid that only the old one holds is not reported.
    // Where a grid holds two tiers of one weight, the first counts, as it does for prices.
    static QList<EcartTarif> ecarts(const TarifsColissimo &de, const TarifsColissimo &a);
    // What these schedules change of those in force on the day before they come into force.
    static QList<EcartTarif> duReleve(const Donnees &donnees, const TarifsColissimo &releves);

    bool operator==(const EcartTarif &) const = default;
};

} // namespace Quillet
