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

QString TextesDonnees::livreRetireAilleurs()
{
    return QStringLiteral("Ce livre a été retiré ailleurs : ce que vous venez de saisir n’est pas enregistré.");
}

QString TextesDonnees::saisieNonReprise(const QStringList &textes)
{
    const QString quoi = textes.isEmpty() ? QStringLiteral("une partie de votre saisie")
                                          : QStringLiteral("« %1 »").arg(textes.join(QStringLiteral(" », « ")));
    return QStringLiteral("Changé ailleurs aussi, donc non repris : %1. À taper de nouveau s’il le faut.").arg(quoi);
}

QString TextesDonnees::arriveesEntreTemps(const QString &dossier)
{
    return QStringLiteral("Vos données sont arrivées d’ailleurs entre-temps : %1. Les relire les met en place ; ce que "
                          "vous avez saisi ici sera perdu.")
        .arg(dossier);
}

} // namespace Quillet
