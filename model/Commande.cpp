#include "model/Commande.h"

#include "model/Donnees.h"
#include "model/EditionReglages.h"

#include <algorithm>
#include <utility>

namespace Quillet {

void Commande::setCodeDestination(const CodeDestination &code)
{
    BonDeCommande bon = bon_;
    bon.destiner(code);
    adopter(bon);
}

void Commande::ajuster(const Livre &livre, int delta)
{
    BonDeCommande bon = bon_;
    bon.ajuster(livre, delta);
    adopter(bon);
}

void Commande::vider()
{
    BonDeCommande bon = bon_;
    bon.vider();
    partis_.clear();
    passerA(bon, bon_);
}

void Commande::rendre()
{
    if (const auto videe = videe_)
        adopter(*videe);
}

void Commande::commencer(const Donnees &donnees)
{
    BonDeCommande bon{.emballage = BonDeCommande::emballageDeDepart(donnees.reglages)};
    bon.suivre(donnees);
    bon.rangAcheteur = bon_.rangAcheteur + (bon_.estVide() ? 0 : 1);
    videe_.reset(); // also where nothing else changes
    partis_.clear();
    adopter(bon);
}

void Commande::suivre(const Donnees &avant, const Donnees &apres)
{
    BonDeCommande bon = bon_;
    bon.emballage = EditionReglages::nomApres(bon.emballage, avant.reglages.emballages, apres.reglages.emballages);
    if (bon.quantites != restees_)
        partis_.clear();
    for (const Parti &parti : std::exchange(partis_, {}))
        if (apres.livres.contains(parti.livre)) // another one may have its number
            bon.quantites.insert(parti.livre.id, parti.copies);
        else
            partis_.append(parti);
    for (const Livre &livre : avant.livres)
        if (bon.quantite(livre) > 0 && std::ranges::find(apres.livres, livre.id, &Livre::id) == apres.livres.end())
            partis_.append({livre, bon.quantite(livre)});
    bon.suivre(apres);
    restees_ = bon.quantites;
    if (videe_)
        videe_->suivre(apres);
    passerA(bon, videe_);
}

void Commande::adopter(const BonDeCommande &bon)
{
    passerA(bon, std::nullopt);
}

void Commande::passerA(const BonDeCommande &bon, const std::optional<BonDeCommande> &videe)
{
    if (bon == bon_)
        return;
    videe_ = videe;
    bon_ = bon;
    emit change();
}

} // namespace Quillet
