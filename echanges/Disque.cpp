#include "echanges/Disque.h"

#include "model/CauseSysteme.h"
#include "model/Fichier.h"
#include "model/Synchronisation.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace Quillet {

namespace {

ErreurStockage erreur(const QString &chemin, int code)
{
    return {chemin, CauseSysteme::enFrancais(std::error_code(code, std::generic_category()))};
}

int renommer(const QString &chemin, const QString &nouveau)
{
    return std::rename(QFile::encodeName(chemin).constData(), QFile::encodeName(nouveau).constData()) == 0 ? 0 : errno;
}

} // namespace

QStringList Disque::fichiers(const QString &dossier)
{
    std::error_code code;
    const auto chemin = std::filesystem::path(QFile::encodeName(dossier).toStdString());
    std::filesystem::directory_iterator suite(chemin, code);
    if (code == std::errc::no_such_file_or_directory)
        return {};
    QStringList fichiers;
    for (; !code && suite != std::filesystem::directory_iterator(); suite.increment(code))
        if (suite->is_regular_file(code) && !code)
            fichiers.append(QFile::decodeName(suite->path().filename().c_str()));
        else if (code == std::errc::no_such_file_or_directory) // a link that leads nowhere
            code.clear();
    if (code)
        throw erreur(dossier, code.value());
    fichiers.sort();
    return fichiers;
}

void Disque::synchroniser(const QString &chemin)
{
    const int fd = open(QFile::encodeName(chemin).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        throw erreur(chemin, errno);
    const int code = erreurDeSynchronisation(fsync(fd));
    close(fd);
    if (code != 0)
        throw erreur(chemin, code);
}

void Disque::remplacer(const QString &chemin, const QString &nouveau)
{
    if (const int code = renommer(chemin, nouveau))
        throw erreur(nouveau, code);
    synchroniser(QFileInfo(nouveau).absolutePath());
}

void Disque::poser(const QString &chemin, const QString &nouveau)
{
    const int code = QFileInfo(nouveau).isSymLink() ? EXDEV : renommer(chemin, nouveau);
    if (code != 0 && code != EXDEV)
        throw erreur(nouveau, code);
    if (code == 0)
        return;
    const auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::toute);
    if (!octets)
        throw erreur(chemin, ENOENT);
    Fichier::ecrire(nouveau, *octets);
    supprimer(chemin);
}

void Disque::supprimer(const QString &chemin)
{
    std::error_code code;
    std::filesystem::remove_all(std::filesystem::path(QFile::encodeName(chemin).toStdString()), code);
    if (code)
        throw erreur(chemin, code.value());
}

void Disque::exigerQuIlSeDeplace(const QString &dossier)
{
    const QFileInfo info(dossier);
    if (!info.isSymLink() && QStorageInfo(dossier).rootPath() == info.canonicalFilePath())
        throw ErreurStockage(dossier, QStringLiteral("c’est un disque à part, qui ne se déplace pas"));
}

} // namespace Quillet
