#include "echanges/ErreurZip.h"

#include "model/CauseSysteme.h"

namespace Quillet {

QString Zip::enFrancais(zip_error_t *erreur)
{
    if (zip_error_system_type(erreur) == ZIP_ET_SYS)
        return CauseSysteme::enFrancais(std::error_code(zip_error_code_system(erreur), std::generic_category()));
    switch (zip_error_code_zip(erreur)) {
    case ZIP_ER_NOZIP:
        return QStringLiteral("ce n’est pas une archive zip, ou elle est incomplète");
    case ZIP_ER_NOENT:
        return QStringLiteral("fichier introuvable");
    case ZIP_ER_MEMORY:
        return QStringLiteral("la mémoire manque");
    case ZIP_ER_COMPNOTSUPP:
        return QStringLiteral("l’archive est comprimée d’une façon que Quillet ne lit pas");
    case ZIP_ER_ENCRNOTSUPP:
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
        return QStringLiteral("l’archive est protégée par un mot de passe");
    case ZIP_ER_MULTIDISK:
        return QStringLiteral("l’archive est en plusieurs morceaux");
    default:
        return QStringLiteral("l’archive est abîmée ou incomplète");
    }
}

} // namespace Quillet
