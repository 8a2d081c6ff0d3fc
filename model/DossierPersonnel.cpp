#include "model/DossierPersonnel.h"

#include "model/Livre.h"
#include "model/Reglages.h"
#include "model/Ressources.h"

#include <QCryptographicHash>

#include <algorithm>

namespace Quillet {

namespace {

QByteArray empreinte(const QByteArray &octets)
{
    return QCryptographicHash::hash(octets, QCryptographicHash::Sha256);
}

// Empty for a file that cannot be read.
QByteArray empreinteDe(const QString &chemin)
{
    const auto octets = Fichier::lire(chemin, Fichier::Borne::donnees);
    return octets ? empreinte(*octets) : QByteArray();
}

QHash<QString, QByteArray> empreintes(const QDir &dossier)
{
    QHash<QString, QByteArray> empreintes;
    for (const QString &nom : Fichier::lister(dossier, QStringLiteral("*.json")))
        empreintes.insert(nom, empreinteDe(dossier.filePath(nom)));
    return empreintes;
}

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

DossierPersonnel::DossierPersonnel(const QDir &dossier) : dossier_(dossier), empreintes_(empreintes(dossier)) {}

QStringList DossierPersonnel::changes() const
{
    const auto actuelles = empreintes(dossier_);
    QStringList changes;
    for (auto actuelle = actuelles.begin(); actuelle != actuelles.end(); ++actuelle)
        if (empreintes_.value(actuelle.key()) != actuelle.value())
            changes.append(actuelle.key());
    for (const QString &nom : empreintes_.keys())
        if (!actuelles.contains(nom))
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

void DossierPersonnel::remplacer(const QString &nom, const QByteArray &octets)
{
    const QString chemin = dossier_.filePath(nom);
    if (empreinteDe(chemin) != empreintes_.value(nom))
        throw DonneesChangees(chemin);
    Fichier::ecrire(chemin, octets);
    empreintes_.insert(nom, empreinte(octets));
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
