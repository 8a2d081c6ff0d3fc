#include "model/Couvertures.h"

QString Couvertures::nom(const QString &fichier)
{
    const qsizetype point = fichier.lastIndexOf(u'.');
    return point > 0 ? fichier.left(point) : fichier;
}

QHash<QString, QString> Couvertures::fichiers(const QDir &dossier)
{
    QHash<QString, QString> fichiers;
    for (const QString &fichier : dossier.entryList(QDir::Files))
        fichiers.insert(nom(fichier), fichier);
    return fichiers;
}
