#pragma once

#include "model/BonDeCommande.h"
#include "model/Donnees.h"

#include <QList>
#include <QSet>

#include <optional>

namespace Quillet {

// Every figure that follows from one order on one day. Each follows from those above it.
struct Calcul
{
    struct Ligne
    {
        Livre livre;
        int quantite = 0; // at least 1

        [[nodiscard]] Centimes montant() const { return livre.prix * quantite; }
        bool operator==(const Ligne &) const = default;
    };

    static Calcul de(const Donnees &donnees, const BonDeCommande &bon, const Jour &aujourdhui);

    QList<Ligne> lignes; // in catalogue order
    Centimes sousTotal;  // the books alone
    Grammes poidsLivres; // a book not yet weighed counts nothing
    QList<Livre> livresNonPeses;
    Grammes poidsEmballage;
    Grammes poidsCalcule;
    std::optional<Grammes> poidsPese; // at least 1 g; none: not weighed
    Grammes poidsRetenu;
    std::optional<Destination> destination;
    std::optional<RegionPaypal> regionPaypal;
    bool douaneRequise = false;
    std::optional<GrilleColissimo> grille;
    // None of the five below when the parcel cannot be priced.
    std::optional<Palier> palier;
    std::optional<Centimes> envoi;
    std::optional<Centimes> total;
    std::optional<Centimes> fraisPaypal; // on the whole payment, postage included
    std::optional<Centimes> reste;       // of the books, once the fee is paid; may be negative

    // Whether the parcel's weight rests on nothing missing: it was weighed, or every book was.
    [[nodiscard]] bool poidsConnu() const { return poidsPese || livresNonPeses.isEmpty(); }
    // Whether no tier of the grid holds the parcel, though its weight is known.
    [[nodiscard]] bool depasseLaGrille() const;
    // Whether there is something to answer and to send: a known total, the books of one seller.
    [[nodiscard]] bool pretAPartir() const { return total && vendeurs().size() == 1; }
    [[nodiscard]] QSet<Vendeur> vendeurs() const;
    [[nodiscard]] int nombreDeLivres() const;

    bool operator==(const Calcul &) const = default;
};

} // namespace Quillet
