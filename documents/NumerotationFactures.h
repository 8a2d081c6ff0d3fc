#pragma once

#include "model/Preferences.h"
#include "model/Vendeur.h"

#include <QDate>
#include <QStringList>

namespace Quillet {

// Numbers of invoices, "2026-007": one series for each seller, starting again with each year. Only the last number of
// each seller is kept: after one of a year to come, no earlier one is.
struct NumerotationFactures
{
    Preferences preferences;

    // To propose; asking consumes nothing. Throws ErreurStockage when the last number could not be read, or was lost.
    [[nodiscard]] QString prochain(Vendeur vendeur, QDate date) const;
    // The last one kept, as it was written; empty when there is none. Throws as `prochain`.
    [[nodiscard]] QString dernier(Vendeur vendeur) const;
    // A sentence for each number kept that is none, after which its series would start again, or that cannot be read.
    [[nodiscard]] QStringList erreurs() const;
    // The invoice has left: the series goes on after it. An older number, or one that is none, changes nothing.
    // Throws ErreurStockage when the preferences could not be read or written; the series is then where
    // it was.
    void retenir(const QString &numero, Vendeur vendeur);
    // The series is another one, kept elsewhere: it goes on after this number, be it an older one, or begins when there
    // is none. Throws as `retenir`.
    void reprendre(const QString &numero, Vendeur vendeur);

    // How a number stands to the series of a day; `aucun` for a text that `retenir` cannot understand.
    enum class Rapport { aucun, anterieur, dansLaSerie, posterieur };
    static Rapport rapport(const QString &numero, QDate date);
    // Whether the series would go on after `numero` once `dernier` was kept.
    static bool avance(const QString &numero, const QString &dernier);
    // What follows the last number of a series: the first of the day's, unless it goes on.
    static QString suivant(const QString &dernier, QDate date);
    // The first number of the day's series: "2026-001".
    static QString premier(QDate date);
};

} // namespace Quillet
