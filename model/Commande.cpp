#include "model/Commande.h"

#include "model/Donnees.h"

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
    adopter(bon);
}

void Commande::suivre(const Donnees &donnees)
{
    BonDeCommande bon = bon_;
    bon.suivre(donnees);
    if (videe_)
        videe_->suivre(donnees);
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
