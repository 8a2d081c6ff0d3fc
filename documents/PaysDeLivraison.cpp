#include "documents/PaysDeLivraison.h"

#include "documents/ReponseType.h"

namespace Quillet {

std::optional<BonDeCommande> PaysDeLivraison::envoyee(BonDeCommande bon, const Pays &pays, const Donnees &donnees)
{
    const auto destination = pays.destination ? donnees.destination(*pays.destination) : std::nullopt;
    if (!destination)
        return std::nullopt;
    const auto precedent = Pays::designe(donnees.pays, bon.paysTrouve);
    if (precedent && precedent->libelleFr != pays.libelleFr)
        ++bon.rangAcheteur; // who lives elsewhere, though the parcel costs the same, is somebody else
    bon.destiner(destination->code);
    bon.horsUE = pays.horsUE.value_or(false);
    bon.paysLivraison = bon.paysTrouve = pays.libelle(langueAcheteur(bon, destination));
    return bon;
}

BonDeCommande PaysDeLivraison::ecrite(BonDeCommande bon, Langue langue, const QList<Pays> &pays)
{
    bon.langue = langue;
    const auto trouve = bon.paysLivraison == bon.paysTrouve ? Pays::designe(pays, bon.paysTrouve) : std::nullopt;
    if (trouve)
        bon.paysLivraison = bon.paysTrouve = trouve->libelle(langue);
    return bon;
}

std::optional<Pays> PaysDeLivraison::deLaListe(const BonDeCommande &bon, const QList<Pays> &pays)
{
    auto nomme = Pays::designe(pays, bon.paysLivraison);
    return nomme && nomme->destination == bon.codeDestination ? nomme : std::nullopt;
}

} // namespace Quillet
