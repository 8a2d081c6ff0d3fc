#include "model/Commande.h"

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
    adopter(bon);
}

void Commande::adopter(const BonDeCommande &bon)
{
    if (bon == bon_)
        return;
    bon_ = bon;
    emit change();
}

} // namespace Quillet
