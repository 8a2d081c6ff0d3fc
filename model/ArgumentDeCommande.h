#pragma once

#include <QString>

#include <algorithm>

namespace Quillet {

// A text to be typed in a terminal as one argument, whatever it holds; quoted where it must be.
inline QString argumentDeCommande(QString texte)
{
    const auto ordinaire = [](QChar signe) {
        return signe.isLetterOrNumber() || QStringLiteral("/._-").contains(signe);
    };
    if (!texte.isEmpty() && std::ranges::all_of(texte, ordinaire))
        return texte;
    return u'\'' + texte.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

} // namespace Quillet
