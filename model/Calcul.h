#pragma once

#include "model/Catalogue.h"
#include "model/Commande.h"

#include <QDate>
#include <QSet>

#include <optional>

// Every figure that follows from one order on one day. Fields are computed in the order in which they stand.
class Calcul
{
public:
    struct Ligne
    {
        Livre livre;
        int quantite = 0; // at least 1

        [[nodiscard]] Centimes montant() const { return livre.prix * quantite; }
        bool operator==(const Ligne &) const = default;
    };

    Calcul(const Catalogue &catalogue, const Commande &commande, QDate aujourdhui);

    const QList<Ligne> lignes; // in catalogue order
    const Centimes sousTotal;  // the books alone
    const Grammes poidsLivres; // a book not yet weighed counts nothing
    const QList<Livre> livresNonPeses;
    const Grammes poidsEmballage;
    const Grammes poidsCalcule;
    const std::optional<Grammes> poidsPese; // at least 1 g; none: not weighed
    const Grammes poidsRetenu;
    const std::optional<Destination> destination;
    const std::optional<RegionPaypal> regionPaypal;
    const bool douaneRequise;
    const std::optional<GrilleColissimo> grille;
    // None of the five below when the parcel cannot be priced.
    const std::optional<Palier> palier;
    const std::optional<Centimes> envoi;
    const std::optional<Centimes> total;
    const std::optional<Centimes> fraisPaypal; // on the whole payment, postage included
    const std::optional<Centimes> reste;       // of the books, once the fee is paid; may be negative

    // Whether the parcel's weight rests on nothing missing: it was weighed, or every book was.
    [[nodiscard]] bool poidsConnu() const { return poidsPese || livresNonPeses.isEmpty(); }
    // Whether no tier of the grid holds the parcel, though its weight is known.
    [[nodiscard]] bool depasseLaGrille() const;
    // Whether there is something to answer and to send: a known total, the books of one seller.
    [[nodiscard]] bool pretAPartir() const { return total && vendeurs().size() == 1; }
    [[nodiscard]] QSet<Vendeur> vendeurs() const;
    [[nodiscard]] int nombreDeLivres() const;
};
