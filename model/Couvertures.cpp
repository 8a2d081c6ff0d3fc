#include "model/Couvertures.h"

#include "model/Fichier.h"

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

QHash<QString, QByteArray> Couvertures::contenus(const QDir &dossier, const QList<Livre> &livres)
{
    const auto presentes = fichiers(dossier);
    QHash<QString, QByteArray> contenus;
    for (const Livre &livre : livres)
        if (const QString fichier = presentes.value(nom(livre.couverture)); !fichier.isEmpty())
            if (const auto octets = Fichier::lireOuRefuser(dossier.filePath(fichier), Fichier::Borne::image))
                contenus.insert(fichier, *octets);
    return contenus;
}

} // namespace Quillet
