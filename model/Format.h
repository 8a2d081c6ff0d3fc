#pragma once

#include "model/Quantite.h"

#include <QDate>
#include <QString>

#include <optional>

// Every conversion of amounts, weights, rates and days into text, and of days back. Separators are those of the CLDR.
namespace Format {

inline constexpr QChar absent(u'—'); // in place of an amount that is missing
// As it is spoken: the dash would be silence.
QString dit(const QString &montant);

QString euros(Centimes montant);                       // 1 234,50 €
QString euros(const std::optional<Centimes> &montant); // `absent` for none
QString ecart(Centimes difference);                    // +1 234,50 €, -0,05 €
QString eurosAnglais(Centimes montant);                // €1,234.50
QString montant(Centimes montant);                     // 1 234,50: two decimals, no currency sign
QString kilos(Grammes poids);                          // 1,250: three decimals, no unit
QString grammes(Grammes poids);                        // 1 250: no unit
QString poids(Grammes poids);                          // 1 250 g
QString palier(Grammes jusqua);                        // 2 kg for whole kilograms, else 1500 g: never grouped
QString jusqua(Grammes palier);                        // jusqu’à 2 kg
QString pourcentage(Taux taux);                        // 3,49 %

QString iso(QDate jour);  // 2025-03-14
QString date(QDate jour); // 14 mars 2025, 1er mars 2025
// Invalid unless the text is a day of the calendar as `iso` writes it.
QDate jour(const QString &iso);
// A text that is not such a day comes back unchanged.
QString date(const QString &iso);

} // namespace Format
