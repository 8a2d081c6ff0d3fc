#include "model/Stockage.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <cerrno>

namespace {

struct Cause
{
    int code;
    const char *phrase;
};

constexpr Cause causes[] = {
    {ENOSPC, "le disque est plein"},
    {EDQUOT, "l’espace disque alloué est épuisé"},
    {EFBIG, "le fichier dépasse la taille permise"},
    {EACCES, "l’écriture n’y est pas permise"},
    {EPERM, "l’écriture n’y est pas permise"},
    {EROFS, "le disque est en lecture seule"},
    {ENOTDIR, "un fichier occupe la place du dossier"},
    {EEXIST, "un fichier occupe la place du dossier"},
    {EISDIR, "un dossier occupe la place du fichier"},
    {EIO, "le disque ne répond pas correctement"},
};

// Qt keeps only the system's sentence, in the system's language: the one of each known code tells which it was.
QString enFrancais(const QString &erreurSysteme)
{
    for (const Cause &cause : causes)
        if (erreurSysteme == qt_error_string(cause.code))
            return QString::fromUtf8(cause.phrase);
    return erreurSysteme;
}

// A full disk first takes a part of the bytes and says why only when asked to take the rest; a buffered QSaveFile
// would even commit that part.
bool toutEcrire(QIODevice &fichier, const QByteArray &octets)
{
    qint64 ecrits = 0;
    while (ecrits < octets.size()) {
        const qint64 pris = fichier.write(octets.constData() + ecrits, octets.size() - ecrits);
        if (pris <= 0)
            return false;
        ecrits += pris;
    }
    return true;
}

[[noreturn]] void echouer(const QString &chemin, const QString &raison)
{
    throw ErreurStockage(QStringLiteral("%1 : %2").arg(QDir::toNativeSeparators(chemin), raison));
}

} // namespace

Stockage Stockage::deLUtilisateur()
{
    const QDir donnees(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return Stockage(QDir(donnees.filePath(QStringLiteral("Quillet"))));
}

QList<TarifsColissimo> Stockage::grillesEnregistrees() const
{
    QList<TarifsColissimo> grilles;
    const QStringList noms = dossier_.entryList({QStringLiteral("tarifs-colissimo-*.json")}, QDir::Files, QDir::Name);
    for (const QString &nom : noms)
        if (const auto tarifs = lire<TarifsColissimo>(nom))
            grilles.append(*tarifs);
    return grilles;
}

std::optional<QByteArray> Stockage::octets(const QString &nom) const
{
    QFile fichier(dossier_.filePath(nom));
    if (!fichier.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray contenu = fichier.readAll();
    return fichier.error() == QFile::NoError ? std::optional(contenu) : std::nullopt;
}

void Stockage::ecrireOctets(const QByteArray &octets, const QString &nom) const
{
    const QFileInfo place(dossier_.absolutePath());
    if (place.exists() && !place.isDir())
        echouer(place.filePath(), QString::fromUtf8("un fichier occupe la place du dossier"));
    if (!dossier_.mkpath(QStringLiteral(".")))
        echouer(place.filePath(), QString::fromUtf8("ce dossier ne peut pas être créé"));

    QSaveFile fichier(dossier_.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !toutEcrire(fichier, octets)
        || !fichier.commit())
        echouer(fichier.fileName(), enFrancais(fichier.errorString()));
}

void Stockage::effacerFichier(const QString &nom) const
{
    QFile fichier(dossier_.filePath(nom));
    if (fichier.exists() && !fichier.remove())
        echouer(fichier.fileName(), enFrancais(fichier.errorString()));
}

void Stockage::copierAPart(const QString &nom) const
{
    const QString chemin = dossier_.filePath(nom);
    QString copie = chemin + QStringLiteral(".illisible");
    for (int numero = 2; QFileInfo::exists(copie); ++numero)
        copie = QStringLiteral("%1.illisible-%2").arg(chemin).arg(numero);
    if (!QFile::copy(chemin, copie))
        echouer(chemin, QString::fromUtf8("ce fichier est illisible et ne peut pas être mis de côté"));
}
