#include "documents/MemoireFactures.h"

#include <algorithm>

namespace Quillet {

void MemoireFactures::suivre(const BonDeCommande &bon)
{
    vente_ = bon.vente();
}

MemoireFactures::Notes MemoireFactures::notes() const
{
    const auto notes = std::ranges::find(notes_, vente_, &Notes::vente);
    return notes == notes_.end() ? Notes{} : *notes;
}

MemoireFactures::Notes &MemoireFactures::aNoter()
{
    if (const auto notes = std::ranges::find(notes_, vente_, &Notes::vente); notes != notes_.end())
        return *notes;
    return notes_.emplaceBack(Notes{.vente = vente_});
}

QString MemoireFactures::acheteur() const
{
    return notes().acheteur;
}

QString MemoireFactures::partie() const
{
    return notes().partie;
}

bool MemoireFactures::estPartie(const QString &numero, Vendeur vendeur) const
{
    return parties_.contains({vendeur, numero});
}

void MemoireFactures::noterAcheteur(const QString &acheteur)
{
    aNoter().acheteur = acheteur;
}

void MemoireFactures::noterDepart(const QString &numero, Vendeur vendeur)
{
    aNoter().partie = numero;
    parties_.append({vendeur, numero});
}

} // namespace Quillet
