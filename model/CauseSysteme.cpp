#include "model/CauseSysteme.h"

#include <array>
#include <cerrno>

namespace Quillet {

namespace {

struct Cause
{
    int code;
    const char *phrase;
};

constexpr auto causes = std::to_array<Cause>({
    {ENOSPC, "le disque est plein"},
    {EDQUOT, "l’espace disque alloué est épuisé"},
    {EFBIG, "le fichier dépasse la taille permise"},
    {EACCES, "l’accès n’est pas permis"},
    {EPERM, "l’accès n’est pas permis"},
    {EROFS, "le disque est en lecture seule"},
    {ENOENT, "fichier introuvable"},
    {ENOTDIR, "un fichier occupe la place d’un dossier"},
    {EEXIST, "un fichier occupe la place d’un dossier"},
    {EISDIR, "un dossier occupe la place du fichier"},
    {ENXIO, "ce n’est pas un fichier ordinaire"}, // a socket
    {ELOOP, "le lien tourne en rond"},
    {ENAMETOOLONG, "le nom est trop long"},
    {EMFILE, "trop de fichiers sont ouverts"},
    {EIO, "le disque ne répond pas correctement"},
});

QString autre(const QString &detail)
{
    return QStringLiteral("erreur du système (%1)").arg(detail);
}

} // namespace

QString CauseSysteme::enFrancais(const std::error_code &code)
{
    for (const Cause &cause : causes)
        if (code.value() == cause.code)
            return QString::fromUtf8(cause.phrase);
    return autre(QString::fromStdString(code.message()));
}

// Qt keeps only the system's sentence, in the system's language: the one of each known code tells which it was.
QString CauseSysteme::enFrancais(const QString &erreurQt)
{
    for (const Cause &cause : causes)
        if (erreurQt == qt_error_string(cause.code))
            return QString::fromUtf8(cause.phrase);
    return autre(erreurQt);
}

} // namespace Quillet
