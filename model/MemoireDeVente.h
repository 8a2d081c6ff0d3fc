#pragma once

#include "model/BonDeCommande.h"

#include <utility>

namespace Quillet {

// What is known of the present order's sale, and forgotten as soon as it is another: but for an emptied order that is
// had back, and after a look at the other seller's books.
template <typename Faits>
class MemoireDeVente
{
public:
    // The order as it is after each change.
    void suivre(const BonDeCommande &bon)
    {
        const BonDeCommande vente = bon.vente();
        if (vente == presente_.vente)
            return;
        const Page neuve{.vente = vente, .faits = {}};
        const Page tournee = std::exchange(presente_, vente == autre_.vente ? autre_ : neuve);
        if (tournee.vente.rangAcheteur != vente.rangAcheteur || tournee.vente.vendeur != vente.vendeur)
            autre_ = tournee;
    }

    [[nodiscard]] Faits &faits() { return presente_.faits; }
    [[nodiscard]] const Faits &faits() const { return presente_.faits; }

private:
    struct Page
    {
        BonDeCommande vente;
        Faits faits;
    };
    Page presente_;
    Page autre_; // of the buyer before, or of the other seller
};

} // namespace Quillet
