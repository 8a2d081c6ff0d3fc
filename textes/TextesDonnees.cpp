#include "textes/TextesDonnees.h"

#include "model/DossierPersonnel.h"

namespace Quillet {

namespace {

QString enMots(const QString &fichier)
{
    if (fichier == DossierPersonnel::livres())
        return QStringLiteral("les livres");
    if (fichier == DossierPersonnel::reglages())
        return QStringLiteral("les vendeurs et emballages");
    if (fichier.startsWith(QLatin1String("tarifs-colissimo-")))
        return QStringLiteral("les tarifs");
    return fichier;
}

} // namespace

QString TextesDonnees::changeesAilleurs(const QStringList &fichiers)
{
    if (fichiers.isEmpty())
        return {};
    QStringList mots;
    for (const QString &fichier : fichiers)
        mots.append(enMots(fichier));
    mots.removeDuplicates();
    return QStringLiteral("Vos données ont été changées ailleurs : %1. Rien n’est écrit par-dessus ; relisez-les pour "
                          "continuer.")
        .arg(mots.join(QStringLiteral(", ")));
}

} // namespace Quillet
