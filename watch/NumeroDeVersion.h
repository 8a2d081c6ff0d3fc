#pragma once

#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <compare>
#include <optional>

namespace Quillet {

// A version's number in its order: 1.9 < 1.10-beta.2 < 1.10-rc1 < 1.10. "1.2" is "1.2.0", and what follows a "+" counts
// for nothing.
class NumeroDeVersion
{
public:
    // None when the text is not a number followed, perhaps, by a pre-release's name.
    static std::optional<NumeroDeVersion> lire(const QString &texte);

    std::strong_ordering operator<=>(const NumeroDeVersion &autre) const;
    bool operator==(const NumeroDeVersion &autre) const = default;

private:
    NumeroDeVersion(QVersionNumber nombres, QStringList suffixe);

    QVersionNumber nombres_; // without zeros at the end
    QStringList suffixe_;    // runs of letters or of digits; empty for a release
};

} // namespace Quillet
