#include "bench/Echantillon.h"

#include "model/Livre.h"

#include <QFile>

namespace Quillet {

namespace {

void relier(const QString &fichier, const QString &lien)
{
    if (!QFile::link(QFileInfo(fichier).absoluteFilePath(), lien))
        qFatal("Lien impossible : %s", qPrintable(lien));
}

} // namespace

Echantillon::Echantillon() : ressources_(Ressources::duProgramme()) {}

Echantillon::Echantillon(int nombre, Images images) : ressources_(QDir(dossier_.filePath(QStringLiteral("partage"))))
{
    const Ressources livrees = Ressources::duProgramme();
    const QDir partage(ressources_.chemin({}));
    partage.mkpath(QStringLiteral("couvertures"));
    for (const QFileInfo &fichier : QDir(livrees.chemin({})).entryInfoList({QStringLiteral("*.json")}, QDir::Files))
        if (fichier.fileName() != QStringLiteral("livres.json"))
            relier(fichier.filePath(), partage.filePath(fichier.fileName()));

    const auto modeles = livrees.lire<QList<Livre>>(QStringLiteral("livres"));
    QList<Livre> livres;
    livres.reserve(nombre);
    for (int i = 0; i < nombre; ++i) {
        Livre livre = modeles[i % modeles.size()];
        const QString image = livrees.chemin(QStringLiteral("couvertures/") + livre.couverture);
        livre.id = i + 1;
        livre.vendeur = Vendeur::davrel;
        livre.couverture.prepend(QStringLiteral("%1-").arg(livre.id));
        if (images == Images::avec && QFile::exists(image))
            relier(image, partage.filePath(QStringLiteral("couvertures/") + livre.couverture));
        livres.append(livre);
    }
    Stockage(partage).ecrire(livres, QStringLiteral("livres.json"));
}

} // namespace Quillet
