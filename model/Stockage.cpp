#include "model/Stockage.h"

#include <QStandardPaths>

namespace Quillet {

Stockage Stockage::deLUtilisateur()
{
    return dans(QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
}

QList<TarifsColissimo> Stockage::grillesEnregistrees()
{
    QList<TarifsColissimo> grilles;
    for (const QString &nom : Fichier::lister(dossier_, TarifsColissimo::motifDeFichier()))
        if (const auto tarifs = lire<TarifsColissimo>(nom))
            grilles.append(*tarifs);
    return grilles;
}

void Stockage::remplacer(const QString &nom, const QByteArray &octets)
{
    Fichier::creerDossier(dossier_.absolutePath());
    preserver(nom);
    Fichier::ecrire(dossier_.filePath(nom), octets);
    compris_.insert(nom, octets);
}

void Stockage::effacer(const QString &nom)
{
    preserver(nom);
    Fichier::effacer(dossier_.filePath(nom));
    compris_.remove(nom);
}

void Stockage::preserver(const QString &nom) const
{
    const QString chemin = dossier_.filePath(nom);
    if (Fichier::excede(chemin, Fichier::Borne::donnees)) {
        Fichier::doubler(chemin);
        return;
    }
    const auto contenu = Fichier::lireOuRefuser(chemin, Fichier::Borne::donnees);
    if (!contenu)
        return;
    if (const auto connu = compris_.constFind(nom); connu != compris_.constEnd() && *connu == *contenu)
        return;
    Fichier::mettreDeCote(chemin, *contenu);
}

} // namespace Quillet
