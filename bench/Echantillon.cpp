#include "bench/Echantillon.h"

#include "echanges/CouverturePrete.h"
#include "model/Livre.h"

#include <QFile>
#include <QImage>

namespace Quillet {

namespace {

void relier(const QString &fichier, const QString &lien)
{
    if (!QFile::link(QFileInfo(fichier).absoluteFilePath(), lien))
        qFatal("Lien impossible : %s", qPrintable(lien));
}

// Of as many bytes and as long to read as a photograph.
void peindre(const QString &fichier)
{
    QImage image(CouverturePrete::tailleAuPlus, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x / 4, y / 5, (x ^ y) & 0x3f));
    if (!image.save(fichier, "jpg"))
        qFatal("Image impossible : %s", qPrintable(fichier));
}

} // namespace

Echantillon::Echantillon() : ressources_(Ressources::duProgramme()) {}

Echantillon::Echantillon(int nombre, Images images, Origine origine)
    : ressources_(origine == Origine::utilisateur ? stockage().donneesPersonnelles()
                                                  : QDir(dossier_.filePath(QStringLiteral("partage"))),
                  origine)
{
    const bool siens = origine == Origine::utilisateur;
    const QString peinte = dossier_.filePath(QStringLiteral("couverture.jpg"));
    if (siens)
        peindre(peinte);
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
        const QString image = siens ? peinte : livrees.chemin(QStringLiteral("couvertures/") + livre.couverture);
        livre.id = i + 1;
        livre.vendeur = Vendeur::davrel;
        livre.couverture = QStringLiteral("%1-%2").arg(QString::number(livre.id), QFileInfo(image).fileName());
        if (images == Images::avec && QFile::exists(image))
            relier(image, partage.filePath(QStringLiteral("couvertures/") + livre.couverture));
        livres.append(livre);
    }
    Stockage(partage).ecrire(livres, QStringLiteral("livres.json"));
}

} // namespace Quillet
