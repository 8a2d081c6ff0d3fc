#include "watch/NumeroDeVersion.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Quillet {

namespace {

constexpr qsizetype longueurMaximale = 64;

bool nombre(const QString &morceau)
{
    return morceau[0].isDigit();
}

// Numbers before names, and each in their order.
std::strong_ordering ordre(const QString &a, const QString &b)
{
    if (nombre(a) != nombre(b))
        return nombre(a) ? std::strong_ordering::less : std::strong_ordering::greater;
    if (nombre(a) && a.size() != b.size())
        return a.size() <=> b.size();
    return a.compare(b) <=> 0;
}

QStringList morceaux(const QString &suffixe)
{
    static const QRegularExpression motif(QStringLiteral("0*([0-9]+)|[a-z]+"));
    QStringList trouves;
    for (auto place = motif.globalMatch(suffixe); place.hasNext();) {
        const auto trouve = place.next();
        trouves.append(trouve.hasCaptured(1) ? trouve.captured(1) : trouve.captured());
    }
    return trouves;
}

} // namespace

NumeroDeVersion::NumeroDeVersion(QVersionNumber nombres, QStringList suffixe)
    : nombres_(std::move(nombres)), suffixe_(std::move(suffixe))
{
}

std::optional<NumeroDeVersion> NumeroDeVersion::lire(const QString &texte)
{
    // A name has letters: "1.2-3" may be a package's third making as well as a pre-release.
    static const QRegularExpression forme(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)*)(?:[-._~ ]?([a-z][-._~a-z0-9]*))?(?:\\+[-.a-z0-9]*)?$"));
    const QString epure = texte.trimmed().toLower();
    const auto lu = epure.size() > longueurMaximale ? QRegularExpressionMatch() : forme.match(epure);
    if (!lu.hasMatch())
        return std::nullopt;
    qsizetype fin = 0;
    const auto nombres = QVersionNumber::fromString(lu.captured(1), &fin);
    if (fin < lu.capturedLength(1)) // too large a number ends the reading
        return std::nullopt;
    return NumeroDeVersion(nombres.normalized(), morceaux(lu.captured(2)));
}

std::strong_ordering NumeroDeVersion::operator<=>(const NumeroDeVersion &autre) const
{
    if (const int nombres = QVersionNumber::compare(nombres_, autre.nombres_); nombres != 0)
        return nombres <=> 0;
    if (suffixe_.isEmpty() != autre.suffixe_.isEmpty())
        return suffixe_.isEmpty() ? std::strong_ordering::greater : std::strong_ordering::less;
    return std::lexicographical_compare_three_way(suffixe_.begin(), suffixe_.end(), autre.suffixe_.begin(),
                                                  autre.suffixe_.end(), ordre);
}

} // namespace Quillet
