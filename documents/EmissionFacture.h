#pragma once

#include "documents/Facture.h"
#include "documents/NumerotationFactures.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace Quillet {

// How an invoice gets its number and leaves.
class EmissionFacture
{
public:
    explicit EmissionFacture(Preferences preferences) : numerotation_{std::move(preferences)} {}

    // What the number's field is to hold, given what it holds: what somebody typed there or what has left from here, or
    // else the next number of the day's series, empty when the last one could not be read. To be asked again just
    // before an invoice leaves: another session may have kept the number meanwhile.
    [[nodiscard]] QString numeroPour(const QString &champ, Vendeur vendeur, QDate jour);
    // To be told each text of the field: one that differs from what was proposed makes it somebody's own from then on.
    void noter(const QString &champ);
    // Why no number could be proposed; empty when one was.
    [[nodiscard]] const QString &sansProposition() const { return sansProposition_; }

    // The last number kept, which `numero` is to come after; empty when there is none that can be read, or when it has
    // left from here.
    [[nodiscard]] QString dernierAvant(const QString &numero, Vendeur vendeur) const;

    // `sortir` says whether the invoice left the program: only then does its number count, and only then is this true.
    // Throws what `sortir` throws, and Echec when the invoice left but its number could not be kept.
    bool emettre(const Facture &facture, Vendeur vendeur, const std::function<bool(const Facture &)> &sortir);

private:
    NumerotationFactures numerotation_;
    std::optional<QString> propose_ = QString(); // what the field holds, until somebody types or dictates another
    QString parti_; // the number of the last invoice that left from here: it may be printed once more
    QString sansProposition_;
};

} // namespace Quillet
