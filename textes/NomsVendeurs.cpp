#include "textes/NomsVendeurs.h"

QString NomsVendeurs::court(Vendeur vendeur)
{
    return vendeur == Vendeur::davrel ? QStringLiteral("Davrel") : QStringLiteral("Mireva");
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
