#pragma once

#include "documents/Facture.h"
#include "documents/MemoireFactures.h"
#include "documents/NumerotationFactures.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace Quillet {

// Where a number stands among its seller's.
struct PlaceDuNumero
{
    QString dernier;        // the last one kept; empty when there is none that can be read
    QString suivant;        // that the day's series waits for; empty when `dernier` could not be read
    bool reparti = false;   // it has left for this very order, and may once more
    bool dejaParti = false; // otherwise, since the program started
};

// How an invoice gets its number and leaves.
class EmissionFacture
{
public:
    // `memoire` is told what leaves, and outlives this.
    EmissionFacture(Preferences preferences, MemoireFactures &memoire)
        : numerotation_{std::move(preferences)}, memoire_(memoire)
    {
    }

    // What the number's field is to hold, given what it holds: what somebody typed there or what has left for the
    // order, or else the next number of the day's series, empty when the last one could not be read. To be asked again
    // just before an invoice leaves: another session may have kept the number meanwhile.
    [[nodiscard]] QString numeroPour(const QString &champ, Vendeur vendeur, QDate jour);
    // To be told each text of the field: one that differs from what was proposed makes it somebody's own from then on.
    void noter(const QString &champ);
    // Why no number could be proposed; empty when one was.
    [[nodiscard]] const QString &sansProposition() const { return sansProposition_; }

    [[nodiscard]] PlaceDuNumero place(const QString &numero, Vendeur vendeur, QDate jour) const;

    // `sortir` says whether the invoice left the program: only then does its number count, and only then is this true.
    // Throws what `sortir` throws, and Echec when the invoice left but its number could not be kept.
    bool emettre(const Facture &facture, Vendeur vendeur, const std::function<bool(const Facture &)> &sortir);

private:
    NumerotationFactures numerotation_;
    MemoireFactures &memoire_;
    std::optional<QString> propose_ = QString(); // what the field holds, until somebody types or dictates another
    QString sansProposition_;
};

} // namespace Quillet
