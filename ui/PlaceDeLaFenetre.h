#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

namespace Quillet {

// Where the window was left, in the words of the preferences.
struct PlaceDeLaFenetre
{
    QRect cadre; // when it does not fill the screen
    bool agrandie = false;

    // Nothing when the words make no sense.
    static std::optional<PlaceDeLaFenetre> lue(const QString &texte);
    [[nodiscard]] QString texte() const;
    // Within the screen that holds the most of it, or the first when none is left that does; never below the minimum.
    [[nodiscard]] QRect dans(const QList<QRect> &ecrans, QSize minimum) const;

    bool operator==(const PlaceDeLaFenetre &) const = default;
};

} // namespace Quillet
