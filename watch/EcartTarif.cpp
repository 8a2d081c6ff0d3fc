#include "watch/EcartTarif.h"

#include "watch/Vraisemblance.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace Quillet {

namespace {

using AvantApres = std::pair<std::optional<Centimes>, std::optional<Centimes>>;

// A day that no calendar has comes back unchanged.
Jour veille(const Jour &jour)
{
    const QDate date = jour.date();
    return date.isValid() ? Jour(date.addDays(-1)) : jour;
}

// Between those of its neighbours: a heavier parcel never costs less.
bool aSaPlace(const QList<Palier> &paliers, Grammes jusqua)
{
    const auto ici = std::ranges::find(paliers, jusqua, &Palier::jusqua);
    const bool plusCherQueLeSuivant = std::distance(ici, paliers.end()) > 1 && std::next(ici)->prix < ici->prix;
    const bool moinsCherQueLePrecedent = ici != paliers.begin() && std::prev(ici)->prix > ici->prix;
    return !plusCherQueLeSuivant && !moinsCherQueLePrecedent;
}

} // namespace

std::optional<Taux> EcartTarif::variation() const
{
    if (!avant || !apres || *avant == Centimes{})
        return std::nullopt;
    const qint64 base = avant->valeur();
    const qint64 dixMilliemes = (*apres - *avant).valeur() * 10'000;
    return Taux{(dixMilliemes + (dixMilliemes < 0 ? -base : base) / 2) / base};
}

bool EcartTarif::aVerifier() const
{
    if (!apres)
        return true;
    return avant ? Quillet::aVerifier(*avant, *apres) : *apres == Centimes{} || !aSaPlace(grille.paliers, jusqua);
}

QString EcartTarif::id() const
{
    return grille.code.texte() + u'-' + QString::number(jusqua.valeur());
}

QList<EcartTarif> EcartTarif::ecarts(const TarifsColissimo &de, const TarifsColissimo &a)
{
    QList<EcartTarif> lignes;
    for (const GrilleColissimo &nouvelle : a.grilles) {
        std::map<Grammes, AvantApres> prix;
        if (const GrilleColissimo *ancienne = de.grille(nouvelle.code))
            for (const auto &[jusqua, montant] : ancienne->paliers)
                if (auto &avant = prix[jusqua].first; !avant)
                    avant = montant;
        for (const auto &[jusqua, montant] : nouvelle.paliers)
            if (auto &apres = prix[jusqua].second; !apres)
                apres = montant;
        for (const auto &[jusqua, montants] : prix)
            if (montants.first != montants.second)
                lignes.append({nouvelle, jusqua, montants.first, montants.second});
    }
    return lignes;
}

QList<EcartTarif> EcartTarif::duReleve(const Donnees &donnees, const TarifsColissimo &releves)
{
    return ecarts(donnees.tarifs(veille(releves.validite)), releves);
}

} // namespace Quillet
