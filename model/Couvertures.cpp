#include "model/Couvertures.h"

namespace Quillet {

QString Couvertures::nom(const QString &fichier)
{
    const qsizetype point = fichier.lastIndexOf(u'.');
    return point > 0 ? fichier.left(point) : fichier;
}

QStringList Couvertures::formats()
{
    return {QStringLiteral("svg"),  QStringLiteral("png"), QStringLiteral("jpg"),
            QStringLiteral("jpeg"), QStringLiteral("gif"), QStringLiteral("bmp")};
}

QHash<QString, QString> Couvertures::fichiers(const QDir &dossier)
{
    QHash<QString, QString> fichiers;
    for (const QString &fichier : dossier.entryList(QDir::Files))
        fichiers.insert(nom(fichier), fichier);
    return fichiers;
}

} // namespace Quillet
