#pragma once

#include "documents/Facture.h"
#include "documents/NumerotationFactures.h"

#include <QString>

#include <functional>
#include <utility>

namespace Quillet {

// How an invoice gets its number and leaves.
class EmissionFacture
{
public:
    explicit EmissionFacture(Preferences preferences) : numerotation_{std::move(preferences)} {}

    // What the number's field is to hold, given what it holds: what somebody typed there, or else the next number of
    // the day's series, empty when the last one could not be read.
    [[nodiscard]] QString numeroPour(const QString &champ, Vendeur vendeur, QDate jour);
    // Why no number could be proposed; empty when one was.
    [[nodiscard]] const QString &sansProposition() const { return sansProposition_; }

    // `sortir` says whether the invoice left the program: only then does its number count, and only then is this true.
    // Throws what `sortir` throws, and Echec when the invoice left but its number could not be kept.
    bool emettre(const Facture &facture, Vendeur vendeur, const std::function<bool(const Facture &)> &sortir);

private:
    NumerotationFactures numerotation_;
    QString propose_; // the last one: while the field holds it, nobody has typed or dictated another
    QString sansProposition_;
};

} // namespace Quillet
