#include "model/Fichier.h"

#include "model/CauseSysteme.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

namespace Quillet {

namespace {

// Some disks say only now that they are full or failing, and QSaveFile does not listen. Gives the error's number, 0 for
// none; a file system that knows no such request is none.
int synchroniser(const QSaveFile &fichier)
{
    return fdatasync(fichier.handle()) == 0 || errno == EINVAL ? 0 : errno;
}

// QSaveFile words the refusal of an existing file itself; opening that file says what the system holds against it.
QString raisonDuRefus(const QSaveFile &fichier)
{
    QFile existant(fichier.fileName());
    if (existant.exists() && !existant.open(QIODevice::ReadWrite))
        return CauseSysteme::enFrancais(existant.errorString());
    if (fichier.error() == QFileDevice::WriteError) // it was refused a moment ago
        return CauseSysteme::enFrancais(std::make_error_code(std::errc::permission_denied));
    return CauseSysteme::enFrancais(fichier.errorString());
}

} // namespace

ErreurStockage::ErreurStockage(const QString &chemin, QString raison)
    : Echec(QStringLiteral("%1 : %2").arg(QDir::toNativeSeparators(chemin), raison)), raison_(std::move(raison))
{
}

bool Fichier::existe(const QString &chemin)
{
    std::error_code erreur;
    const auto statut = std::filesystem::status(chemin.toStdString(), erreur);
    if (statut.type() == std::filesystem::file_type::none)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(erreur));
    return statut.type() != std::filesystem::file_type::not_found;
}

QStringList Fichier::lister(const QDir &dossier, const QString &motif)
{
    return dossier.entryList({motif}, QDir::Files | QDir::CaseSensitive, QDir::Name);
}

std::optional<QByteArray> Fichier::lire(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray contenu = fichier.readAll();
    return fichier.error() == QFile::NoError ? std::optional(contenu) : std::nullopt;
}

std::optional<QByteArray> Fichier::lireOuRefuser(const QString &chemin)
{
    if (!existe(chemin))
        return std::nullopt;
    if (QFileInfo(chemin).isDir()) // which Qt refuses in words of its own
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(std::make_error_code(std::errc::is_a_directory)));
    QFile fichier(chemin);
    QByteArray contenu;
    if (fichier.open(QIODevice::ReadOnly))
        contenu = fichier.readAll();
    if (fichier.error() != QFile::NoError)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    return contenu;
}

void Fichier::creerDossier(const QString &chemin)
{
    std::error_code erreur;
    std::filesystem::create_directories(chemin.toStdString(), erreur);
    if (erreur)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(erreur));
}

// A full disk first takes a part, and says why only when asked to take the rest.
bool Fichier::toutEcrire(QIODevice &fichier, QByteArrayView octets)
{
    while (!octets.isEmpty()) {
        const qint64 pris = fichier.write(octets.data(), octets.size());
        if (pris <= 0)
            return false;
        octets = octets.sliced(pris);
    }
    return true;
}

void Fichier::ecrire(const QString &chemin, const QByteArray &octets)
{
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) // buffered, it commits a cut file on a full disk
        throw ErreurStockage(chemin, raisonDuRefus(fichier));
    if (!toutEcrire(fichier, octets))
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    if (const int erreur = synchroniser(fichier))
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(std::error_code(erreur, std::generic_category())));
    if (!fichier.commit())
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
}

} // namespace Quillet
