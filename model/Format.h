#pragma once

#include "model/Jour.h"
#include "model/Langue.h"
#include "model/Quantite.h"

#include <QDate>
#include <QString>

#include <optional>

// Every conversion of amounts, weights, rates and days into text. Separators are those of the CLDR.
namespace Quillet::Format {

inline constexpr QChar absent(u'—'); // in place of an amount that is missing
// As it is spoken: the dash would be silence.
QString dit(const QString &montant);

QString euros(Centimes montant, Langue langue = Langue::francais); // 1 234,50 €, €1,234.50
// `absent` for none.
QString euros(const std::optional<Centimes> &montant, Langue langue = Langue::francais);
QString ecart(Centimes difference); // +1 234,50 €, -0,05 €
QString montant(Centimes montant);  // 1 234,50: two decimals, no currency sign
QString kilos(Grammes poids);       // 1,250: three decimals, no unit
QString grammes(Grammes poids);     // 1 250: no unit
QString poids(Grammes poids);       // 1 250 g
QString palier(Grammes jusqua);     // 2 kg for whole kilograms, else 1500 g: never grouped
QString jusqua(Grammes palier);     // jusqu’à 2 kg
QString pourcentage(Taux taux);     // 3,49 %

QString iso(QDate jour);        // 2025-03-14
QString date(QDate jour);       // 14 mars 2025, 1er mars 2025
QString date(const Jour &jour); // one that no calendar has, as it was written

} // namespace Quillet::Format
