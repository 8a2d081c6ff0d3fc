#include "model/Fichier.h"

#include "model/CauseSysteme.h"
#include "model/Synchronisation.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

namespace Quillet {

namespace {

using EtatSysteme = struct stat;

QString raisonSysteme(int erreur)
{
    return CauseSysteme::enFrancais(std::error_code(erreur, std::generic_category()));
}

class Descripteur
{
public:
    Descripteur(const QString &chemin, int drapeaux)
        : fd_(open(QFile::encodeName(chemin).constData(), drapeaux | O_RDONLY | O_CLOEXEC))
    {
    }
    ~Descripteur()
    {
        if (fd_ >= 0)
            close(fd_);
    }
    Q_DISABLE_COPY_MOVE(Descripteur)
    [[nodiscard]] int fd() const { return fd_; }

private:
    int fd_;
};

// Names come to the disk with their folder, not with their file. Opened before anything moves there: a folder that
// cannot be is refused while that is still true. One that may only be written in cannot be asked for anything.
class Dossier
{
public:
    explicit Dossier(const QFileInfo &contenu) : ouvert_(contenu.absolutePath(), O_DIRECTORY)
    {
        if (ouvert_.fd() < 0 && errno != EACCES)
            throw ErreurStockage(contenu.filePath(), raisonSysteme(errno));
    }
    [[nodiscard]] int synchroniser() const
    {
        return ouvert_.fd() < 0 ? 0 : erreurDeSynchronisation(fsync(ouvert_.fd()));
    }

private:
    Descripteur ouvert_;
};

// How much of the buffer the file fills.
qsizetype lireAuPlus(int fd, QByteArray &tampon, const QString &chemin)
{
    qsizetype lus = 0;
    while (lus < tampon.size()) {
        const ssize_t morceau = read(fd, tampon.data() + lus, static_cast<std::size_t>(tampon.size() - lus));
        if (morceau < 0 && errno == EINTR)
            continue;
        if (morceau < 0)
            throw ErreurStockage(chemin, raisonSysteme(errno));
        if (morceau == 0)
            break;
        lus += morceau;
    }
    return lus;
}

// Where a name leads: QSaveFile, too, replaces what a link points to.
QFileInfo cible(const QString &chemin)
{
    QFileInfo info(chemin);
    for (int liens = 0; liens < 40 && info.isSymLink(); ++liens)
        info.setFile(info.symLinkTarget());
    return info;
}

// The disk did not take a folder's new names: they are taken back, so that what is told is true. `existait`: something
// stood there, though perhaps nothing that could be read.
ErreurStockage repris(const QString &chemin, bool existait, const std::optional<QByteArray> &avant, int erreur)
{
    QSaveFile fichier(chemin);
    const bool remis = avant ? fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                                   && Fichier::toutEcrire(fichier, *avant) && fichier.commit()
                             : !existait && QFile::remove(chemin);
    return {chemin, remis ? raisonSysteme(erreur)
                          : QStringLiteral("%1 ; le changement est en place, mais une coupure de courant le perdrait")
                                .arg(raisonSysteme(erreur))};
}

// The first name beside the file that is free, or whose file is the one to keep: of an attempt whose write then failed.
template <typename Predicat>
QString nomDeCote(const QString &chemin, Predicat estGarde)
{
    QString copie = chemin + QStringLiteral(".illisible");
    for (int numero = 2; Fichier::existe(copie) && !estGarde(copie); ++numero)
        copie = QStringLiteral("%1.illisible-%2").arg(chemin, QString::number(numero));
    return copie;
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

std::optional<QByteArray> Fichier::lire(const QString &chemin, qint64 borne)
{
    try {
        return lireOuRefuser(chemin, borne);
    } catch (const ErreurStockage &) { // the caller has another value for it
        return std::nullopt;
    }
}

std::optional<QByteArray> Fichier::lireOuRefuser(const QString &chemin, qint64 borne)
{
    if (!existe(chemin))
        return std::nullopt;
    const Descripteur ouvert(chemin, O_NONBLOCK | O_NOCTTY); // nobody may ever write into a pipe
    EtatSysteme etat{};
    if (ouvert.fd() < 0 || fstat(ouvert.fd(), &etat) != 0)
        throw ErreurStockage(chemin, raisonSysteme(errno));
    if (S_ISDIR(etat.st_mode))
        throw ErreurStockage(chemin, raisonSysteme(EISDIR));
    if (!S_ISREG(etat.st_mode))
        throw ErreurStockage(chemin, QStringLiteral("ce n’est pas un fichier ordinaire"));
    if (etat.st_size > borne)
        throw ErreurStockage(chemin, raisonSysteme(EFBIG));
    QByteArray contenu(etat.st_size + 1, Qt::Uninitialized); // one more shows that it grows
    contenu.truncate(lireAuPlus(ouvert.fd(), contenu, chemin));
    if (contenu.size() != etat.st_size)
        throw ErreurStockage(chemin, QStringLiteral("le fichier change pendant sa lecture"));
    return contenu;
}

void Fichier::creerDossier(const QString &chemin)
{
    const QFileInfo info(chemin);
    if (info.isDir())
        return;
    const QString parent = info.absolutePath();
    if (parent != info.absoluteFilePath())
        creerDossier(parent);
    const Dossier dossier(info);
    if (mkdir(QFile::encodeName(chemin).constData(), 0777) != 0) {
        const int erreur = errno;
        if (!QFileInfo(chemin).isDir())
            throw ErreurStockage(chemin, raisonSysteme(erreur));
    }
    if (const int erreur = dossier.synchroniser()) {
        rmdir(QFile::encodeName(chemin).constData()); // the next save asks again
        throw ErreurStockage(chemin, raisonSysteme(erreur));
    }
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
    const Dossier dossier(cible(chemin));
    const bool existait = existe(chemin);
    const auto avant = lire(chemin, Borne::toute);
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) // buffered, it commits a cut file on a full disk
        throw ErreurStockage(chemin, raisonDuRefus(fichier));
    if (!toutEcrire(fichier, octets))
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    // Some disks say only now that they are full or failing, and QSaveFile does not listen.
    if (const int erreur = erreurDeSynchronisation(fdatasync(fichier.handle())))
        throw ErreurStockage(chemin, raisonSysteme(erreur));
    if (!fichier.commit())
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(fichier.errorString()));
    if (const int erreur = dossier.synchroniser())
        throw repris(chemin, existait, avant, erreur);
}

QString Fichier::mettreDeCote(const QString &chemin, const QByteArray &contenu)
{
    const QString copie = nomDeCote(chemin, [&](const QString &nom) { return lire(nom, Borne::toute) == contenu; });
    if (!existe(copie))
        ecrire(copie, contenu);
    return QFileInfo(copie).fileName();
}

bool Fichier::excede(const QString &chemin, qint64 borne)
{
    const QFileInfo info(chemin);
    return info.isFile() && info.size() > borne;
}

QString Fichier::doubler(const QString &chemin)
{
    const QString copie = nomDeCote(chemin, [&](const QString &nom) {
        std::error_code erreur;
        return std::filesystem::equivalent(nom.toStdString(), chemin.toStdString(), erreur);
    });
    const Dossier dossier{QFileInfo(copie)};
    if (!existe(copie)
        && linkat(AT_FDCWD, QFile::encodeName(chemin).constData(), AT_FDCWD, QFile::encodeName(copie).constData(),
                  AT_SYMLINK_FOLLOW)
               != 0)
        throw ErreurStockage(chemin, raisonSysteme(EFBIG)); // some disks know no second name
    if (const int erreur = dossier.synchroniser())
        throw ErreurStockage(copie, raisonSysteme(erreur));
    return QFileInfo(copie).fileName();
}

void Fichier::renommer(const QString &chemin, const QString &nouveau)
{
    const Dossier depart{QFileInfo(chemin)};
    const Dossier arrivee{QFileInfo(nouveau)};
    const auto passer = [](const QString &de, const QString &vers) {
        return renameat2(AT_FDCWD, QFile::encodeName(de).constData(), AT_FDCWD, QFile::encodeName(vers).constData(),
                         RENAME_NOREPLACE)
                       == 0
                   ? 0
                   : errno;
    };
    if (const int erreur = passer(chemin, nouveau))
        throw ErreurStockage(nouveau, raisonSysteme(erreur));
    const int premier = arrivee.synchroniser();
    if (const int erreur = premier ? premier : depart.synchroniser()) {
        passer(nouveau, chemin); // as it was, or else in its new place, whole
        throw ErreurStockage(nouveau, raisonSysteme(erreur));
    }
}

void Fichier::effacer(const QString &chemin)
{
    const bool geant = excede(chemin, Borne::toute);
    const auto avant = geant ? std::nullopt : lireOuRefuser(chemin, Borne::toute);
    if (!avant && !geant && !QFileInfo(chemin).isSymLink()) // what it leads to may come back
        return;
    const Dossier dossier{QFileInfo(chemin)};
    std::error_code erreur;
    std::filesystem::remove(chemin.toStdString(), erreur);
    if (erreur)
        throw ErreurStockage(chemin, CauseSysteme::enFrancais(erreur));
    if (const int refus = dossier.synchroniser())
        throw repris(chemin, true, avant, refus);
}

} // namespace Quillet
