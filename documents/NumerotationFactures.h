#pragma once

#include "model/Preferences.h"
#include "model/Vendeur.h"

#include <QDate>

#include <optional>

// Numbers of invoices, "2026-007": one series for each seller, starting again with each year. Only the last number of
// each seller is kept.
struct NumerotationFactures
{
    Preferences preferences;

    // To propose; asking consumes nothing. Throws ErreurStockage when the last number could not be read.
    [[nodiscard]] QString prochain(Vendeur vendeur, QDate date) const;
    // The invoice has left: the series goes on after it. An older number, or one that is none, changes nothing.
    // Throws ErreurStockage when the preferences could not be read or written; the series is then where
    // it was.
    void retenir(const QString &numero, Vendeur vendeur);

    // The year a number belongs to; none for a text that `retenir` cannot understand.
    static std::optional<qint64> annee(const QString &numero);
};
