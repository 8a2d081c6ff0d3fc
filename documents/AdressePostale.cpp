#include "documents/AdressePostale.h"

#include <QRegularExpression>
#include <QStringList>

namespace Quillet {

QString AdressePostale::sansVides(const QString &texte)
{
    static const QRegularExpression sauts(QStringLiteral("\\v+")); // whatever breaks a line
    QStringList lignes;
    for (const QString &ligne : texte.split(sauts))
        if (const QString pleine = ligne.trimmed(); !pleine.isEmpty())
            lignes.append(pleine);
    return lignes.join(u'\n');
}

} // namespace Quillet
