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
const QString fichierDeLEcart = QStringLiteral("ecart.json"); // in most, none

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

Avancee::Avancee(const QDir &reprise, const QDir &utilisateur)
    : reprise_(reprise), utilisateur_(utilisateur), noms_(lireDans<QList<QString>>(reprise, liste))
{
    if (Fichier::existe(reprise.filePath(fichierDeLEcart)))
        ecart_ = lireDans<QList<QString>>(reprise, fichierDeLEcart).value(0);
}

void Avancee::noter(const QDir &reprise, const QStringList &noms, const QString &ecart)
{
    if (!ecart.isEmpty())
        Fichier::ecrire(reprise.filePath(fichierDeLEcart), Json::encoder(QList<QString>{ecart}));
    Fichier::ecrire(reprise.filePath(liste), Json::encoder(QList<QString>(noms)));
}

void Avancee::placerLesFichiers()
{
    ecarter();
    const auto estDesDonnees = [](const QString &nom) { return nom.startsWith(PiecesDArchive::propres); };
    if (std::ranges::any_of(noms_, estDesDonnees)) {
        placerLesDonnees();
        retirerLesAutres();
    }
    placerCeuxDeLUtilisateur();
}

// Once: what stands there afterwards is what is being taken.
void Avancee::ecarter() const
{
    const QString la = utilisateur_.filePath(PiecesDArchive::propres.chopped(1));
    const auto existe = [](const QString &nom) { return Fichier::existe(nom) || QFileInfo(nom).isSymLink(); };
    if (!ecart_.isEmpty() && !existe(utilisateur_.filePath(ecart_)) && existe(la))
        Fichier::renommer(la, utilisateur_.filePath(ecart_));
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
    for (const QString &nom : noms_)
        if (nom == Stockage::fichierDesLivres())
            reecrire<ModificationsLivres>(nom);
        else if (nom == Stockage::fichierDesFrais())
            reecrire<FraisPaypal>(nom);
        else if (PiecesDArchive::estUnTarif(nom))
            reecrire<TarifsColissimo>(nom);
}

// As the program does with such a file: one that it does not understand is copied aside first, and one that would hold
// nothing is none.
template <typename T>
void Avancee::reecrire(const QString &nom)
{
    Stockage stockage(utilisateur_);
    static_cast<void>(stockage.lire<T>(nom));
    if (const T valeur = lireDans<T>(reprise_, nom); valeur == T())
        stockage.effacer(nom);
    else
        stockage.ecrire(valeur, nom);
}

void Avancee::placerLesSeries(const Preferences &preferences) const
{
    NumerotationFactures numerotation{preferences};
    const auto series = lireDans<SeriesFactures>(reprise_, PiecesDArchive::series);
    for (const auto &[vendeur, numero] : series.asKeyValueRange())
        if (const auto cas = vendeur.cas())
            numerotation.reprendre(numero, *cas);
}

} // namespace Quillet
