#include "echanges/CouverturePrete.h"

#include <QByteArrayList>

namespace Quillet {

QByteArray CouverturePrete::enTexte() const
{
    QByteArrayList mots{extension.toLatin1()};
    for (const qint64 composante : teinte)
        mots.append(QByteArray::number(composante));
    return mots.join(' ') + '\n' + octets.toBase64();
}

std::optional<CouverturePrete> CouverturePrete::lue(QByteArrayView texte)
{
    const qsizetype fin = texte.indexOf('\n');
    if (fin < 0)
        return std::nullopt;
    const QByteArrayList mots = texte.first(fin).toByteArray().split(' ');
    const auto image =
        QByteArray::fromBase64Encoding(texte.sliced(fin + 1).toByteArray(), QByteArray::AbortOnBase64DecodingErrors);
    if (mots.size() != 4 || (mots[0] != "jpg" && mots[0] != "png") || !image || image.decoded.isEmpty())
        return std::nullopt;
    CouverturePrete prete{image.decoded, QString::fromLatin1(mots[0]), {}};
    for (qsizetype rang = 1; rang < mots.size(); ++rang) {
        bool entier = false;
        prete.teinte.append(mots[rang].toLongLong(&entier));
        if (!entier || prete.teinte.last() < 0 || prete.teinte.last() > 255)
            return std::nullopt;
    }
    return prete;
}

} // namespace Quillet
