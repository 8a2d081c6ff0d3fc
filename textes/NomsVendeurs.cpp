#include "textes/NomsVendeurs.h"

namespace Quillet {

QString NomsVendeurs::court(Vendeur vendeur, const Donnees &donnees)
{
    const QString place = traits(vendeur).nom.toString();
    const auto identite = donnees.reglages.identite(vendeur);
    return identite ? identite->nomCourt.value_or(donnees.personnelles ? identite->nom : place) : place;
}

QString NomsVendeurs::livresDeChacun(const Donnees &donnees)
{
    QStringList noms;
    for (const Vendeur vendeur : donnees.vendeurs())
        noms.append(court(vendeur, donnees));
    return QStringLiteral("les livres de ") + noms.join(QStringLiteral(" et ceux de "));
}

QString NomsVendeurs::complet(Vendeur vendeur, const Donnees &donnees)
{
    const auto identite = donnees.reglages.identite(vendeur);
    return identite ? identite->nom : court(vendeur, donnees);
}

QString NomsVendeurs::site(Vendeur vendeur, const Donnees &donnees)
{
    const auto identite = donnees.reglages.identite(vendeur);
    return identite && identite->site ? *identite->site : court(vendeur, donnees);
}

} // namespace Quillet
