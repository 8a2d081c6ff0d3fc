#include "model/Ressources.h"

#include "model/ArgumentDeCommande.h"
#include "model/Fichier.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Quillet {

namespace {

// A link may lead to a disk that is not there today.
bool estLa(const QString &dossier)
{
    const QFileInfo info(dossier);
    return info.exists() || info.isSymLink();
}

QDir propre(const QString &dossier)
{
    return {QDir::cleanPath(QFileInfo(dossier).absoluteFilePath())};
}

} // namespace

Ressources Ressources::enVigueur(const QDir &personnelles)
{
    const auto propres = Ressources::personnelles(personnelles);
    return propres ? *propres : duProgramme();
}

std::optional<Ressources> Ressources::personnelles(const QDir &dossier)
{
    return estLa(dossier.path()) ? std::optional(Ressources(propre(dossier.path()), Origine::utilisateur))
                                 : std::nullopt;
}

Ressources Ressources::duProgramme()
{
    return autourDe(QDir(QCoreApplication::applicationDirPath()));
}

Ressources Ressources::autourDe(const QDir &programme)
{
    const QString propres = programme.filePath(QStringLiteral(QUILLET_PARTAGE "/quillet-donnees"));
    if (estLa(propres))
        return Ressources(propre(propres), Origine::administrateur);
    for (const QString &dossier : {QStringLiteral(QUILLET_PARTAGE "/quillet"), QStringLiteral("resources")})
        if (programme.exists(dossier + QStringLiteral("/livres.json")))
            return Ressources(QDir(programme.filePath(dossier)), Origine::exemple);
    throw RessourceIllisible(QStringLiteral("livres.json : fichier introuvable"));
}

QStringList Ressources::nomsDesTarifs() const
{
    QStringList noms = Fichier::lister(dossier_, TarifsColissimo::motifDeFichier());
    for (QString &nom : noms)
        nom = QFileInfo(nom).completeBaseName();
    return noms;
}

QList<TarifsColissimo> Ressources::tarifs() const
{
    QList<TarifsColissimo> tarifs;
    for (const QString &nom : nomsDesTarifs())
        tarifs.append(lire<TarifsColissimo>(nom));
    if (tarifs.isEmpty())
        refuser(tarifsIntrouvables());
    return tarifs;
}

QString Ressources::tarifsIntrouvables()
{
    return QStringLiteral("tarifs-colissimo-….json : fichier introuvable");
}

QByteArray Ressources::octets(const Json::Lieu &fichier) const
{
    try {
        if (const auto contenu = Fichier::lireOuRefuser(dossier_.filePath(fichier.chemin()), Fichier::Borne::donnees))
            return *contenu;
    } catch (const ErreurStockage &erreur) {
        fichier.refuser(erreur.raison());
    }
    fichier.refuser(QStringLiteral("fichier introuvable"));
}

void Ressources::refuser(const QString &raison) const
{
    if (origine_ != Origine::administrateur && origine_ != Origine::utilisateur)
        throw RessourceIllisible(raison);
    const QString conseil = QStringLiteral("%1\n\nCe sont vos propres données, dans %2.\nPour voir tout ce qui est à "
                                           "corriger, dans un terminal :\nquillet --verifier %3");
    throw RessourceIllisible(conseil.arg(raison, dossier_.path(), argumentDeCommande(dossier_.path())));
}

} // namespace Quillet
