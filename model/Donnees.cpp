#include "model/Donnees.h"

#include <algorithm>

namespace Quillet {

namespace {

bool memesPrix(const TarifsColissimo &connus, const TarifsColissimo &lus)
{
    return connus.grilles.size() == lus.grilles.size()
           && std::ranges::all_of(lus.grilles, [&](const GrilleColissimo &lue) {
                  const GrilleColissimo *connue = connus.grille(lue.code);
                  return connue && connue->paliers == lue.paliers;
              });
}

} // namespace

QList<Vendeur> Donnees::vendeurs() const
{
    const auto aUnLivre = [&](Vendeur vendeur) {
        return std::ranges::find(livres, vendeur, &Livre::vendeur) != livres.end();
    };
    QList<Vendeur> vendeurs;
    for (const Vendeur vendeur : tous<Vendeur>)
        if (!personnelles || reglages.identite(vendeur) || aUnLivre(vendeur))
            vendeurs.append(vendeur);
    return vendeurs;
}

const TarifsColissimo &Donnees::tarifs(const Jour &jour) const
{
    Q_ASSERT(!grillesConnues.isEmpty());
    const TarifsColissimo *enVigueur = nullptr;
    for (const TarifsColissimo &tarifs : grillesConnues)
        if (tarifs.validite <= jour && (!enVigueur || tarifs.validite > enVigueur->validite))
            enVigueur = &tarifs;
    return enVigueur ? *enVigueur
                     : *std::ranges::min_element(grillesConnues, std::ranges::less{}, &TarifsColissimo::validite);
}

std::optional<TarifsColissimo> Donnees::tarifsAVenir(const Jour &aujourdhui) const
{
    const TarifsColissimo *prochains = nullptr;
    for (const TarifsColissimo &tarifs : grillesConnues)
        if (tarifs.validite > aujourdhui && (!prochains || tarifs.validite < prochains->validite))
            prochains = &tarifs;
    return prochains ? std::optional(*prochains) : std::nullopt;
}

bool Donnees::connait(const TarifsColissimo &tarifs) const
{
    return std::ranges::any_of(grillesConnues,
                               [&](const TarifsColissimo &connus) { return memesPrix(connus, tarifs); });
}

std::optional<Destination> Donnees::destination(const CodeDestination &code) const
{
    const auto trouvee = std::ranges::find(destinations, code, &Destination::code);
    return trouvee == destinations.end() ? std::nullopt : std::optional(*trouvee);
}

QList<PrixBouton> Donnees::boutons(const Livre &livre, const TarifsColissimo &tarifs) const
{
    const Grammes emballage = reglages.emballages.isEmpty() ? Grammes{} : reglages.emballages.first().poids;
    return PrixBouton::calculer(livre, tarifs, destinations, emballage);
}

} // namespace Quillet
