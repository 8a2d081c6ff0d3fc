#pragma once

#include <QStringView>

#include <optional>

// Amounts and weights of short French texts, as a pattern of ICU's dialect would find them.
namespace Quillet::TexteHTML {

// The first number, in hundredths: "4,9" and "4.90 €" are 490. None without one, or when it does not fit.
std::optional<qint64> centiemes(QStringView texte);
// The first weight, in grams: "Jusqu’à 0,5 kg" is 500. None without one, or when it does not fit.
std::optional<qint64> grammes(QStringView texte);

} // namespace Quillet::TexteHTML
