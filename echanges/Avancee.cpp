#include "echanges/Avancee.h"

#include "documents/NumerotationFactures.h"
#include "echanges/Disque.h"
#include "echanges/Manifeste.h"
#include "echanges/PiecesDArchive.h"
#include "model/Livre.h"
#include "model/Reglages.h"
#include "model/Stockage.h"

#include <QFileInfo>

#include <algorithm>

namespace Quillet {

namespace {

const QString liste = QStringLiteral("liste.json");

template <typename T>
T lireDans(const QDir &dossier, const QString &nom)
{
    const QString chemin = dossier.filePath(nom);
    const auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::donnees);
    if (!octets)
        throw ErreurStockage(chemin, QStringLiteral("fichier introuvable"));
    return Json::decoder<T>(*octets, nom);
}

} // namespace

Avancee::Avancee(const QDir &reprise, const QDir &utilisateur, const Preferences &preferences)
    : reprise_(reprise),
      utilisateur_(utilisateur),
      preferences_(preferences),
      noms_(lireDans<QList<QString>>(reprise, liste))
{
}

void Avancee::noter(const QDir &reprise, const QStringList &noms)
{
    Fichier::ecrire(reprise.filePath(liste), Json::encoder(QList<QString>(noms)));
}

void Avancee::jusquAuBout()
{
    const auto estDesDonnees = [](const QString &nom) { return nom.startsWith(PiecesDArchive::propres); };
    if (std::ranges::any_of(noms_, estDesDonnees)) {
        placerLesDonnees();
        retirerLesAutres();
    } else {
        reecrire<ModificationsLivres>(Stockage::fichierDesLivres());
    }
    placerCeuxDeLUtilisateur();
    placerLesSeries();
}

// A book must not name a picture that is not there yet, be it for somebody who reads the same folder.
void Avancee::placerLesDonnees()
{
    Fichier::creerDossier(utilisateur_.filePath(PiecesDArchive::couvertures.chopped(1)));
    for (const QString &nom : noms_)
        if (nom.startsWith(PiecesDArchive::couvertures))
            placer(nom);
    Disque::synchroniser(utilisateur_.filePath(PiecesDArchive::couvertures));
    for (const QString &nom : noms_)
        if (nom.startsWith(PiecesDArchive::propres) && !nom.startsWith(PiecesDArchive::couvertures))
            placer(nom);
    Disque::synchroniser(utilisateur_.filePath(PiecesDArchive::propres));
}

// What is there no more was put in its place before.
void Avancee::placer(const QString &nom) const
{
    if (Fichier::existe(reprise_.filePath(nom)))
        Disque::poser(reprise_.filePath(nom), utilisateur_.filePath(nom));
}

void Avancee::retirerLesAutres() const
{
    for (const QString &dossier : {PiecesDArchive::propres, PiecesDArchive::couvertures}) {
        for (const QString &fichier : Disque::fichiers(utilisateur_.filePath(dossier))) {
            const QString nom = dossier + fichier;
            if (PiecesDArchive::borne(nom) && !noms_.contains(nom))
                Disque::supprimer(utilisateur_.filePath(nom));
        }
        Disque::synchroniser(utilisateur_.filePath(dossier));
    }
}

void Avancee::placerCeuxDeLUtilisateur()
{
    reecrire<FraisPaypal>(Stockage::fichierDesFrais());
    QStringList fichiers = Disque::fichiers(utilisateur_.path()) + noms_;
    fichiers.removeDuplicates();
    for (const QString &nom : fichiers)
        if (PiecesDArchive::estUnTarif(nom))
            reecrire<TarifsColissimo>(nom);
}

// As the program does with such a file: one that it does not understand is copied aside first.
template <typename T>
void Avancee::reecrire(const QString &nom)
{
    Stockage stockage(utilisateur_);
    static_cast<void>(stockage.lire<T>(nom));
    if (noms_.contains(nom))
        stockage.ecrire(lireDans<T>(reprise_, nom), nom);
    else
        stockage.effacer(nom);
}

void Avancee::placerLesSeries()
{
    NumerotationFactures numerotation{preferences_};
    const auto series = lireDans<SeriesFactures>(reprise_, PiecesDArchive::series);
    for (const auto &[vendeur, numero] : series.asKeyValueRange())
        if (const auto cas = vendeur.cas())
            numerotation.reprendre(numero, *cas);
}

} // namespace Quillet
