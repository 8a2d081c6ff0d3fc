#include "documents/VendeurUnique.h"

#include "model/controle/Objections.h"

namespace Quillet {

std::optional<IdentiteVendeur> identiteEntiere(Vendeur vendeur, const Reglages &reglages)
{
    const auto identite = reglages.identite(vendeur);
    if (!identite)
        return std::nullopt;
    const auto objections = Objections::surLeVendeur(*identite);
    for (const QString &champ : {QStringLiteral("nom"), QStringLiteral("adresse")})
        if (!Objections::auChamp(objections, champ).isEmpty())
            return std::nullopt;
    return identite;
}

std::optional<IdentiteVendeur> vendeurUnique(const Calcul &calcul, const Reglages &reglages)
{
    const QSet<Vendeur> vendeurs = calcul.vendeurs();
    return vendeurs.size() == 1 ? identiteEntiere(*vendeurs.begin(), reglages) : std::nullopt;
}

} // namespace Quillet
