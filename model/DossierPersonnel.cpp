#include "model/DossierPersonnel.h"

#include "model/Reglages.h"
#include "model/Ressources.h"

#include <algorithm>

namespace Quillet {

namespace {

void copier(const Ressources &modele, const QString &nom, const QDir &dossier)
{
    const QString chemin = modele.chemin(nom);
    if (const auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::donnees))
        Fichier::ecrire(dossier.filePath(nom), *octets);
}

} // namespace

DonneesChangees::DonneesChangees(const QString &chemin)
    : ErreurStockage(chemin, QStringLiteral("ce fichier a été changé ailleurs depuis qu’il a été lu ici"))
{
}

DossierPersonnel::Contenus DossierPersonnel::lus(const QDir &dossier)
{
    Contenus lus;
    for (const QString &nom : Fichier::lister(dossier, QStringLiteral("*.json")))
        lus.insert(nom, Fichier::lire(dossier.filePath(nom), Fichier::Borne::donnees));
    return lus;
}

DossierPersonnel::DossierPersonnel(const QDir &dossier) : dossier_(dossier), contenus_(lus(dossier)) {}

QStringList DossierPersonnel::changes() const
{
    const Contenus actuels = lus(dossier_);
    QStringList changes;
    for (auto actuel = actuels.begin(); actuel != actuels.end(); ++actuel)
        if (contenus_.value(actuel.key()) != actuel.value())
            changes.append(actuel.key());
    for (const QString &nom : contenus_.keys())
        if (!actuels.contains(nom))
            changes.append(nom);
    changes.sort();
    return changes;
}

QStringList DossierPersonnel::chemins() const
{
    QStringList chemins{dossier_.path()};
    for (const QString &nom : Fichier::lister(dossier_, QStringLiteral("*.json")))
        chemins.append(dossier_.filePath(nom));
    return chemins;
}

void DossierPersonnel::ecrire(const QList<Livre> &livres)
{
    remplacer(DossierPersonnel::livres(), ecriture_.encoder(livres));
}

void DossierPersonnel::ecrire(const Reglages &reglages)
{
    remplacer(DossierPersonnel::reglages(), Json::encoder(reglages));
}

// Compared as they are: of two thousand books, a digest would take as long as the rest of a save.
void DossierPersonnel::remplacer(const QString &nom, const QByteArray &octets)
{
    const QString chemin = dossier_.filePath(nom);
    if (Fichier::lire(chemin, Fichier::Borne::donnees) != contenus_.value(nom))
        throw DonneesChangees(chemin);
    Fichier::ecrire(chemin, octets);
    contenus_.insert(nom, octets);
}

void DossierPersonnel::creer(const QDir &dossier, const Ressources &modele, const Reglages &reglages,
                             const QList<Livre> &livres, const QHash<QString, QByteArray> &couvertures)
{
    const QString nouveau = dossier.path() + QStringLiteral(".nouveau"); // left by an attempt that was cut short
    QDir(nouveau).removeRecursively();
    const QDir provisoire(nouveau);
    const QDir images(provisoire.filePath(QStringLiteral("couvertures")));
    try {
        Fichier::creerDossier(images.absolutePath());
        for (auto couverture = couvertures.begin(); couverture != couvertures.end(); ++couverture)
            Fichier::ecrire(images.filePath(couverture.key()), couverture.value());
        for (const QString &nom :
             modele.nomsDesTarifs() + QStringList{QStringLiteral("destinations"), QStringLiteral("pays")})
            copier(modele, nom + QStringLiteral(".json"), provisoire);
        Fichier::ecrire(provisoire.filePath(DossierPersonnel::reglages()), Json::encoder(reglages));
        Fichier::ecrire(provisoire.filePath(DossierPersonnel::livres()), Json::encoder(livres));
        Fichier::renommer(nouveau, dossier.path());
    } catch (const ErreurStockage &) {
        QDir(nouveau).removeRecursively();
        throw;
    }
}

} // namespace Quillet
