#include "documents/VendeurUnique.h"

namespace Quillet {

std::optional<IdentiteVendeur> vendeurUnique(const Calcul &calcul, const Reglages &reglages)
{
    const QSet<Vendeur> vendeurs = calcul.vendeurs();
    return vendeurs.size() == 1 ? reglages.identite(*vendeurs.begin()) : std::nullopt;
}

} // namespace Quillet
