#pragma once

#include <QStringView>

#include <algorithm>

namespace Quillet {

// Nothing but 0 to 9, or nothing at all. What Qt reads as a number may have blanks and a sign besides, and
// QChar::isDigit takes the digits of every script.
inline bool queDesChiffres(QStringView texte)
{
    return std::ranges::all_of(texte, [](QChar signe) { return signe >= u'0' && signe <= u'9'; });
}

} // namespace Quillet
