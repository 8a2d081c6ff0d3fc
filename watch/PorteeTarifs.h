#pragma once

#include "watch/EcartTarif.h"

#include <QStringList>

namespace Quillet {

// What keeping schedules that were read would do from today on: the days before theirs, which the list of differences
// speaks of, may be long gone.
struct PorteeTarifs
{
    QList<EcartTarif> ecarts;     // from those that count without them; empty when they have no effect
    QStringList grillesDisparues; // short names, of those that count without them
    bool correction = false;      // others of the same day are known
    bool sansEffet = false;       // others, of a later day, are in force already
    bool desAujourdhui = false;   // today's orders follow them

    // Whether they change those known for their day: the list, which speaks of the day before, does not say so.
    [[nodiscard]] bool corrige() const { return correction && !ecarts.isEmpty(); }

    static PorteeTarifs de(const Donnees &donnees, const TarifsColissimo &lus, const Jour &aujourdhui);
};

} // namespace Quillet
