#include "watch/Nombres.h"

#include "model/ChiffresAscii.h"
#include "watch/Signes.h"

#include <QString>

#include <algorithm>
#include <array>

namespace Quillet {

namespace {

// A whole part and its decimals, as `decimales` digits of a larger whole: missing ones are zeros, further ones are cut.
// None when it does not fit, or when a digit that counts is not an ASCII one.
std::optional<qint64> echelle(QStringView entier, QStringView fraction, qsizetype decimales)
{
    const QStringView gardee = fraction.first(std::min(decimales, fraction.size()));
    const QString chiffres = entier.toString() + gardee.toString().leftJustified(decimales, u'0');
    if (!queDesChiffres(chiffres))
        return std::nullopt;
    bool tient = false;
    const qint64 valeur = chiffres.toLongLong(&tient);
    return tient ? std::optional(valeur) : std::nullopt;
}

qsizetype prochainChiffre(QStringView texte, qsizetype place)
{
    while (place < texte.size() && !Signes::estChiffre(texte, place))
        ++place;
    return place;
}

// "\s*(kg|g)\b" from here: how many decimals turn the number into grams; -1 when no unit follows.
qsizetype decimalesDeLUnite(QStringView texte, qsizetype place)
{
    const qsizetype unite = Signes::finDesBlancs(texte, place);
    const std::array<std::pair<QStringView, qsizetype>, 2> unites{{{u"kg", 3}, {u"g", 0}}};
    for (const auto &[nom, decimales] : unites)
        if (const qsizetype fin = Signes::finDuLitteral(texte, unite, nom); fin >= 0 && Signes::finDeMot(texte, fin))
            return decimales;
    return -1;
}

} // namespace

// "(\d+)(?:[,.](\d{1,2}))?"
std::optional<qint64> TexteHTML::centiemes(QStringView texte)
{
    const qsizetype debut = prochainChiffre(texte, 0);
    if (debut == texte.size())
        return std::nullopt;
    const qsizetype fin = Signes::finDesChiffres(texte, debut);
    QStringView fraction;
    if (fin < texte.size() && (texte[fin] == u',' || texte[fin] == u'.'))
        fraction = texte.sliced(fin + 1, Signes::finDesChiffres(texte, fin + 1, 2) - fin - 1);
    return echelle(texte.sliced(debut, fin - debut), fraction, 2);
}

// "(\d+)(?:,(\d+))?\s*(kg|g)\b". A number that no unit follows is left for the next one, its decimals being one too:
// each run of digits is read twice at most.
std::optional<qint64> TexteHTML::grammes(QStringView texte)
{
    qsizetype fin = 0;
    for (qsizetype debut = prochainChiffre(texte, 0); debut < texte.size(); debut = prochainChiffre(texte, fin)) {
        fin = Signes::finDesChiffres(texte, debut);
        const QStringView entier = texte.sliced(debut, fin - debut);
        const bool virgule = fin < texte.size() && texte[fin] == u',';
        const qsizetype finFraction = virgule ? Signes::finDesChiffres(texte, fin + 1) : fin;
        const QStringView fraction = virgule ? texte.sliced(fin + 1, finFraction - fin - 1) : QStringView();
        if (virgule && fraction.isEmpty())
            continue;
        if (const qsizetype decimales = decimalesDeLUnite(texte, finFraction); decimales >= 0)
            return echelle(entier, fraction, decimales);
    }
    return std::nullopt;
}

} // namespace Quillet
