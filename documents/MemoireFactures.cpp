#include "documents/MemoireFactures.h"

namespace Quillet {

namespace {

// Another language for the reply, or a book taken and put back, does not make another order.
BonDeCommande essentiel(BonDeCommande bon)
{
    bon.langue.reset();
    bon.quantites.removeIf([](const auto &entree) { return entree.value() == 0; });
    return bon;
}

} // namespace

void MemoireFactures::suivre(const BonDeCommande &bon)
{
    if (essentiel(bon) != essentiel(bon_)) {
        acheteur_.clear();
        partie_.clear();
    }
    bon_ = bon;
}

bool MemoireFactures::estPartie(const QString &numero, Vendeur vendeur) const
{
    return parties_.contains({vendeur, numero});
}

void MemoireFactures::noterDepart(const QString &numero, Vendeur vendeur)
{
    partie_ = numero;
    parties_.append({vendeur, numero});
}

} // namespace Quillet
