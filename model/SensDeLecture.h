#pragma once

#include <QString>

#include <algorithm>

namespace Quillet {

// Whether a sign that is not seen may show what follows, or all, backwards: an address or a name that holds one need
// not be what it looks like.
inline bool contientUnSigneDeSens(const QString &texte)
{
    const auto change = [](QChar signe) {
        return (signe >= QChar(0x202A) && signe <= QChar(0x202E)) || (signe >= QChar(0x2066) && signe <= QChar(0x2069))
               || signe == QChar(0x200E) || signe == QChar(0x200F) || signe == QChar(0x061C);
    };
    return std::ranges::any_of(texte, change);
}

} // namespace Quillet
