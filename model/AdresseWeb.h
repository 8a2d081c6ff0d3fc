#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace Quillet {

// A whole address, as the files hold it; none when the text is not one: it could not be read again.
inline std::optional<QUrl> adresseWeb(const QString &texte)
{
    const QUrl adresse = QUrl::fromEncoded(QUrl(texte).toEncoded()); // as it will be read back, half characters mended
    const bool entiere = adresse.isValid() && !adresse.scheme().isEmpty() && !adresse.host().isEmpty();
    return entiere ? std::optional(adresse) : std::nullopt;
}

} // namespace Quillet
