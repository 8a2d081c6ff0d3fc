#include "model/BonDeCommande.h"

#include "model/Donnees.h"

#include <algorithm>

namespace Quillet {

bool BonDeCommande::estVide() const
{
    return std::ranges::none_of(quantites, [](int quantite) { return quantite > 0; });
}

BonDeCommande BonDeCommande::vente() const
{
    BonDeCommande vente{.vendeur = vendeur,
                        .quantites = quantites,
                        .codeDestination = codeDestination,
                        .horsUE = horsUE,
                        .rangAcheteur = rangAcheteur};
    vente.quantites.removeIf([](const auto &entree) { return entree.value() == 0; });
    return vente;
}

void BonDeCommande::ajuster(const Livre &livre, int delta)
{
    const auto voulue = qint64{quantite(livre)} + delta;
    const bool etaitVide = estVide();
    quantites[livre.id] = static_cast<int>(std::clamp<qint64>(voulue, 0, quantiteMaximale));
    if (!etaitVide && estVide())
        ++rangAcheteur;
}

void BonDeCommande::destiner(const CodeDestination &code)
{
    if (code == codeDestination)
        return;
    codeDestination = code;
    horsUE = false;
    paysLivraison.clear();
    paysTrouve.clear();
    langue.reset();
}

void BonDeCommande::vider()
{
    *this = {.vendeur = vendeur,
             .emballage = emballage,
             .poidsEmballageLibre = poidsEmballageLibre,
             .codeDestination = codeDestination,
             .rangAcheteur = estVide() ? rangAcheteur : rangAcheteur + 1};
}

void BonDeCommande::suivre(const Donnees &donnees)
{
    const QList<Vendeur> vendeurs = donnees.vendeurs();
    if (!vendeurs.isEmpty() && !vendeurs.contains(vendeur))
        vendeur = vendeurs.first();
    const QList<Emballage> &emballages = donnees.reglages.emballages;
    if (emballage != autrePoids() && std::ranges::find(emballages, emballage, &Emballage::nom) == emballages.end())
        emballage = emballageDeDepart(donnees.reglages);
    quantites.removeIf([&](const auto &entree) {
        return std::ranges::find(donnees.livres, entree.key(), &Livre::id) == donnees.livres.end();
    });
}

QString BonDeCommande::emballageDeDepart(const Reglages &reglages)
{
    return reglages.emballageDeDepart.value_or(BonDeCommande().emballage);
}

} // namespace Quillet
