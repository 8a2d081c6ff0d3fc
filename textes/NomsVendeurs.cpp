#include "textes/NomsVendeurs.h"

namespace Quillet {

QString NomsVendeurs::court(Vendeur vendeur)
{
    return traits(vendeur).nom.toString();
}

QString NomsVendeurs::livresDeChacun()
{
    QStringList noms;
    for (const Vendeur vendeur : tous<Vendeur>)
        noms.append(court(vendeur));
    return QStringLiteral("les livres de ") + noms.join(QStringLiteral(" et ceux de "));
}

QString NomsVendeurs::complet(Vendeur vendeur, const Reglages &reglages)
{
    const auto identite = reglages.identite(vendeur);
    return identite ? identite->nom : court(vendeur);
}

QString NomsVendeurs::site(Vendeur vendeur, const Reglages &reglages)
{
    const auto identite = reglages.identite(vendeur);
    return identite ? identite->site.value_or(court(vendeur)) : court(vendeur);
}

} // namespace Quillet
