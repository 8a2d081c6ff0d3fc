#include "model/Reglages.h"

namespace Quillet {

Centimes FraisPaypal::frais(Centimes montant, RegionPaypal region) const
{
    const Taux tauxTotal = taux + supplement(region);
    return (montant * tauxTotal.valeur() + Centimes{5000}) / 10000 + fixe;
}

std::optional<IdentiteVendeur> Reglages::identite(Vendeur vendeur) const
{
    const auto trouvee = vendeurs.find(vendeur);
    return trouvee == vendeurs.end() ? std::nullopt : std::optional(*trouvee);
}

} // namespace Quillet
