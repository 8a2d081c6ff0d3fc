#include "echanges/NomDeFichier.h"

#include <QStringList>

namespace Quillet {

QString NomDeFichier::de(const QString &titre)
{
    constexpr qsizetype lettresAuPlus = 60;
    QString nom;
    for (const QChar signe : titre.toLower().normalized(QString::NormalizationForm_KD)) {
        if ((signe >= u'a' && signe <= u'z') || (signe >= u'0' && signe <= u'9'))
            nom.append(signe);
        else if (!signe.isMark())
            nom.append(u' ');
    }
    nom = nom.simplified().replace(u' ', u'-').left(lettresAuPlus);
    while (nom.endsWith(u'-'))
        nom.chop(1);
    return nom.isEmpty() ? QStringLiteral("livre") : nom;
}

} // namespace Quillet
