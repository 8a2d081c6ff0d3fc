#include "documents/MemoireFactures.h"

namespace Quillet {

void MemoireFactures::suivre(const BonDeCommande &bon)
{
    vente_ = bon.vente();
    if (bon.estVide()) // the next buyer may want the same
        notes_ = {};
}

QString MemoireFactures::acheteur() const
{
    return notes_.vente == vente_ ? notes_.acheteur : QString();
}

QString MemoireFactures::partie() const
{
    return notes_.vente == vente_ ? notes_.partie : QString();
}

bool MemoireFactures::estPartie(const QString &numero, Vendeur vendeur) const
{
    return parties_.contains({vendeur, numero});
}

void MemoireFactures::noterAcheteur(const QString &acheteur)
{
    notes_ = {vente_, acheteur, partie()};
}

void MemoireFactures::noterDepart(const QString &numero, Vendeur vendeur)
{
    notes_ = {vente_, acheteur(), numero};
    parties_.append({vendeur, numero});
}

} // namespace Quillet
