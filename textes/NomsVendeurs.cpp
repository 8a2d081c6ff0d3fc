#include "textes/NomsVendeurs.h"

namespace Quillet {

namespace {

// Whose name is not known: the example's is nobody's in the sellers' own data.
QString place(Vendeur vendeur, const Donnees &donnees)
{
    return donnees.personnelles ? QStringLiteral("Vendeur %1").arg(static_cast<int>(vendeur) + 1)
                                : traits(vendeur).nom.toString();
}

} // namespace

QString NomsVendeurs::court(Vendeur vendeur, const Donnees &donnees)
{
    const auto identite = donnees.reglages.identite(vendeur);
    if (identite && identite->nomCourt)
        return *identite->nomCourt;
    return identite && donnees.personnelles && !identite->nom.trimmed().isEmpty() ? identite->nom
                                                                                  : place(vendeur, donnees);
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
    const bool sansNom = !identite || (donnees.personnelles && identite->nom.trimmed().isEmpty());
    return sansNom ? court(vendeur, donnees) : identite->nom;
}

QString NomsVendeurs::site(Vendeur vendeur, const Donnees &donnees)
{
    const auto identite = donnees.reglages.identite(vendeur);
    return identite && identite->site ? *identite->site : court(vendeur, donnees);
}

} // namespace Quillet
