#include "documents/MemoireFactures.h"

namespace Quillet {

bool MemoireFactures::estPartie(const QString &numero, Vendeur vendeur) const
{
    return parties_.contains({vendeur, numero});
}

void MemoireFactures::noterAcheteur(const QString &acheteur)
{
    memoire_.faits().acheteur = acheteur;
}

void MemoireFactures::noterDepart(const QString &numero, Vendeur vendeur)
{
    memoire_.faits().partie = numero;
    parties_.append({vendeur, numero});
}

} // namespace Quillet
