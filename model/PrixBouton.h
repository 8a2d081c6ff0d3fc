#pragma once

#include "model/Destination.h"
#include "model/Livre.h"
#include "model/Tarifs.h"

#include <QList>

#include <optional>

namespace Quillet {

// What one book's PayPal button should charge for one destination: the book alone in the default packaging.
struct PrixBouton
{
    Destination destination;
    std::optional<Grammes> palier; // upper bound of the tier used
    std::optional<Centimes> envoi;
    std::optional<Centimes> actuel;  // what the button charges now; none: nothing recorded
    std::optional<Centimes> calcule; // none: not weighed, or outside the grid
    std::optional<Centimes> ecarte;  // the computed price the seller chose not to apply

    enum class Etat { sansPrix, aJour, garde, aReporter };
    [[nodiscard]] Etat etat() const;

    static QList<PrixBouton> calculer(const Livre &livre, const TarifsColissimo &tarifs,
                                      const QList<Destination> &destinations, Grammes emballage);
    // Those whose price the seller has to change in PayPal.
    static QList<PrixBouton> aReporter(QList<PrixBouton> boutons);

    bool operator==(const PrixBouton &) const = default;
};

} // namespace Quillet
