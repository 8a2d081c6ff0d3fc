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
    const bool suivie = lignes.size() == 1 && texte.endsWith(u'\n');
    return lignes.join(u'\n') + (suivie ? QStringLiteral("\n") : QString());
}

} // namespace Quillet
