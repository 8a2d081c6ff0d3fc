#include "model/Ressources.h"

#include <QCoreApplication>
#include <QFile>

Ressources Ressources::duProgramme()
{
    const QDir programme(QCoreApplication::applicationDirPath());
    for (const QString &dossier : {QStringLiteral("../share/quillet"), QStringLiteral("resources")})
        if (programme.exists(dossier + QStringLiteral("/livres.json")))
            return Ressources(QDir(programme.filePath(dossier)));
    throw RessourceIllisible(QStringLiteral("livres.json : fichier introuvable"));
}

QList<TarifsColissimo> Ressources::tarifs() const
{
    QList<TarifsColissimo> tarifs;
    const QStringList fichiers =
        dossier_.entryList({QStringLiteral("tarifs-colissimo-*.json")}, QDir::Files, QDir::Name);
    for (const QString &fichier : fichiers)
        tarifs.append(lire<TarifsColissimo>(fichier.chopped(5)));
    if (tarifs.isEmpty())
        throw RessourceIllisible(QStringLiteral("tarifs-colissimo-….json : fichier introuvable"));
    return tarifs;
}

QByteArray Ressources::octets(const QString &fichier) const
{
    QFile source(dossier_.filePath(fichier));
    if (!source.exists())
        throw RessourceIllisible(fichier + QStringLiteral(" : fichier introuvable"));
    if (!source.open(QIODevice::ReadOnly))
        throw RessourceIllisible(fichier + QStringLiteral(" : ") + source.errorString());
    return source.readAll();
}
