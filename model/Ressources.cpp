#include "model/Ressources.h"

#include "model/CauseSysteme.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

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
        dossier_.entryList({TarifsColissimo::motifDeFichier()}, QDir::Files | QDir::CaseSensitive, QDir::Name);
    for (const QString &fichier : fichiers)
        tarifs.append(lire<TarifsColissimo>(QFileInfo(fichier).completeBaseName()));
    if (tarifs.isEmpty())
        throw RessourceIllisible(QStringLiteral("tarifs-colissimo-….json : fichier introuvable"));
    return tarifs;
}

QByteArray Ressources::octets(const QString &fichier) const
{
    QFile source(dossier_.filePath(fichier));
    QByteArray contenu;
    if (source.open(QIODevice::ReadOnly))
        contenu = source.readAll();
    if (source.error() != QFile::NoError)
        throw RessourceIllisible(fichier + QStringLiteral(" : ") + CauseSysteme::enFrancais(source.errorString()));
    return contenu;
}
