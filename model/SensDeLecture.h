#pragma once

#include <QString>

#include <algorithm>
#include <optional>

namespace Quillet {

// The first sign that is not seen but may show what follows, or all, backwards: an address or a name that holds one
// need not be what it looks like. None: it can be believed.
inline std::optional<QChar> signeDeSens(const QString &texte)
{
    const auto change = [](QChar signe) {
        return (signe >= QChar(0x202A) && signe <= QChar(0x202E)) || (signe >= QChar(0x2066) && signe <= QChar(0x2069))
               || signe == QChar(0x200E) || signe == QChar(0x200F) || signe == QChar(0x061C);
    };
    const auto trouve = std::ranges::find_if(texte, change);
    return trouve == texte.end() ? std::nullopt : std::optional(*trouve);
}

} // namespace Quillet
