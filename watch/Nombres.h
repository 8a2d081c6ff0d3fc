#pragma once

#include <QStringView>

#include <limits>
#include <optional>

// Amounts and weights of short French texts, as a pattern of ICU's dialect would find them.
namespace Quillet::TexteHTML {

// Beyond any limit: may stand for a number that does not fit.
inline constexpr qint64 horsDeToutNombre = std::numeric_limits<qint64>::max();

// The first number, in hundredths: "4,9" and "4.90 €" are 490. None without one; `tropGrand` when it does not fit.
std::optional<qint64> centiemes(QStringView texte, std::optional<qint64> tropGrand = {});
// The first weight, in grams: "Jusqu’à 0,5 kg" is 500. None without one; `tropGrand` when it does not fit.
std::optional<qint64> grammes(QStringView texte, std::optional<qint64> tropGrand = {});

} // namespace Quillet::TexteHTML
