#pragma once

#include "model/Destination.h"
#include "model/Livre.h"
#include "model/Pays.h"
#include "model/PrixBouton.h"
#include "model/Reglages.h"
#include "model/Tarifs.h"

#include <QList>

#include <optional>

namespace Quillet {

// The reference data that orders are computed from.
struct Donnees
{
    QList<Livre> livres;
    QList<TarifsColissimo> grillesConnues; // at least one, in the order in which they were loaded
    QList<Destination> destinations;
    Reglages reglages;
    QList<Pays> pays;          // none where the sellers' own data come from before there was such a list
    bool personnelles = false; // the sellers' own, changed by the screens

    // Those that screens name. The sellers' own data may name one only: then nothing of the other shows.
    [[nodiscard]] QList<Vendeur> vendeurs() const;

    // The schedule in force on a day; before the first one, the earliest. It lives until these data change.
    [[nodiscard]] const TarifsColissimo &tarifs(const Jour &jour) const;
    // The next schedule that is not yet in force.
    [[nodiscard]] std::optional<TarifsColissimo> tarifsAVenir(const Jour &aujourdhui) const;
    // Whether a known schedule has the same grids at the same prices, whatever its dates.
    [[nodiscard]] bool connait(const TarifsColissimo &tarifs) const;
    [[nodiscard]] std::optional<Destination> destination(const CodeDestination &code) const;
    // The book's buttons under a schedule: sent alone, in the default packaging.
    [[nodiscard]] QList<PrixBouton> boutons(const Livre &livre, const TarifsColissimo &tarifs) const;

    bool operator==(const Donnees &) const = default;
};

} // namespace Quillet
