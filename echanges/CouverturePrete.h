#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QSize>
#include <QString>

#include <optional>

namespace Quillet {

// A cover's picture as it is kept: cropped, at the size that screens use at most, and nothing but its pixels.
struct CouverturePrete
{
    QByteArray octets;
    QString extension;    // "jpg", or "png" for one that can be seen through
    QList<qint64> teinte; // proposed: red, green, blue

    // Half as high again as wide, for the largest card on a screen of double density.
    static constexpr QSize tailleAuPlus{840, 1260};

    // How one program hands it to another; none when the bytes are no such text.
    [[nodiscard]] QByteArray enTexte() const;
    static std::optional<CouverturePrete> lue(QByteArrayView texte);

    bool operator==(const CouverturePrete &) const = default;
};

} // namespace Quillet
