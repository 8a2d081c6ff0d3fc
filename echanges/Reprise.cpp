#include "echanges/Reprise.h"

#include "documents/NumerotationFactures.h"
#include "echanges/Avancee.h"
#include "echanges/Copies.h"
#include "echanges/Disque.h"
#include "echanges/PiecesDArchive.h"
#include "model/controle/ControleDonnees.h"

#include <QFileInfo>

#include <algorithm>

namespace Quillet {

namespace {

// The first of what there is to say: one mistake of a program that wrote a file can come back with each book.
constexpr qsizetype phrasesAuPlus = 5;

QString partielle(const QDir &utilisateur)
{
    return utilisateur.filePath(QStringLiteral("reprise.partielle"));
}

QString engagee(const QDir &utilisateur)
{
    return utilisateur.filePath(QStringLiteral("reprise"));
}

void oublier(const QDir &utilisateur)
{
    try {
        Disque::supprimer(partielle(utilisateur));
    } catch (const ErreurStockage &) {
        return; // nothing reads it, and the next import asks again
    }
}

// A user's file is ignored when it cannot be read: one that would be is no gain.
template <typename T>
void exigerLisible(const QDir &dossier, const QString &nom)
{
    const auto octets = Fichier::lireOuRefuser(dossier.filePath(nom), Fichier::Borne::donnees);
    if (octets)
        static_cast<void>(Json::decoder<T>(*octets, nom));
}

// A link may lead to a disk that is not there today; better said before anything moves.
void exigerLaPlace(const QDir &utilisateur)
{
    const QFileInfo propres(utilisateur.filePath(PiecesDArchive::propres.chopped(1)));
    if (!propres.exists() && !propres.isSymLink())
        return;
    if (!propres.isDir())
        throw ErreurStockage(propres.filePath(), QStringLiteral("ce n’est pas un dossier, ou il est introuvable"));
    if (!propres.isWritable() || !propres.isExecutable())
        throw ErreurStockage(propres.filePath(), QStringLiteral("l’accès n’est pas permis"));
}

} // namespace

RepriseInachevee::RepriseInachevee(const QString &raison)
    : Echec(QStringLiteral("Import inachevé : %1\n\nQuillet l’achèvera à son prochain démarrage, dès que ce sera "
                           "possible. Rien n’est perdu.")
                .arg(raison))
{
}

std::unique_ptr<Reprise> Reprise::preparer(const QString &archive, const Demeure &demeure, QDate aujourdhui)
{
    const auto ouvrir = [&](const QString &dossier) { return Archive::deballer(archive, dossier); };
    return std::unique_ptr<Reprise>(new Reprise(demeure, aujourdhui, ouvrir));
}

std::unique_ptr<Reprise> Reprise::regarder(const QString &archive, const Demeure &demeure, QDate aujourdhui)
{
    const auto ouvrir = [&](const QString &dossier) { return Archive::entrouvrir(archive, dossier); };
    return std::unique_ptr<Reprise>(new Reprise(demeure, aujourdhui, ouvrir));
}

Reprise::Reprise(const Demeure &demeure, QDate aujourdhui, const Ouverture &ouvrir) : demeure_(demeure)
{
    const QString dossier = partielle(demeure_.utilisateur);
    Disque::supprimer(dossier);
    try {
        Fichier::creerDossier(dossier);
        const Archive::Contenu contenu = ouvrir(dossier);
        manifeste_ = contenu.manifeste;
        noms_ = contenu.noms;
        inconnus_ = contenu.inconnus;
        charger(aujourdhui);
    } catch (...) {
        oublier(demeure_.utilisateur);
        throw;
    }
}

Reprise::~Reprise()
{
    oublier(demeure_.utilisateur);
}

void Reprise::charger(QDate aujourdhui)
{
    const QDir dossier(partielle(demeure_.utilisateur));
    propres_ = std::ranges::any_of(noms_, [](const QString &nom) { return nom.startsWith(PiecesDArchive::propres); });
    if (propres_ && noms_.removeAll(Stockage::fichierDesLivres()) > 0) // changes of books that it does not have
        inconnus_.append(QStringLiteral("« %1 »").arg(Stockage::fichierDesLivres()));
    const Ressources donnees =
        propres_ ? Ressources(QDir(dossier.filePath(PiecesDArchive::propres.chopped(1))), Origine::utilisateur)
                 : demeure_.donnees;
    const ControleDonnees controle = ControleDonnees::de(donnees.dossier(), aujourdhui);
    const QStringList phrases = controle.erreurs.first(qMin(controle.erreurs.size(), phrasesAuPlus));
    try {
        exigerLisible<FraisPaypal>(dossier, Stockage::fichierDesFrais());
        exigerLisible<ModificationsLivres>(dossier, Stockage::fichierDesLivres());
        for (const QString &nom : noms_)
            if (PiecesDArchive::estUnTarif(nom))
                exigerLisible<TarifsColissimo>(dossier, nom);
        lireLesSeries(dossier);
        donnees_ = Catalogue::charge(donnees, Stockage(dossier))->donnees();
    } catch (const RessourceIllisible &) {
        throw Echec(
            QStringLiteral("Les données de cette archive ne peuvent pas être lues :\n%1").arg(phrases.join(u'\n')));
    } catch (const Json::Erreur &erreur) {
        throw Echec(QStringLiteral("Les données de cette archive ne peuvent pas être lues :\n%1").arg(erreur.texte()));
    }
    if (propres_)
        remarques_ = phrases;
}

void Reprise::lireLesSeries(const QDir &dossier)
{
    const auto octets = Fichier::lireOuRefuser(dossier.filePath(PiecesDArchive::series), Fichier::Borne::preferences);
    if (!octets)
        return;
    series_ = Json::decoder<SeriesFactures>(*octets, PiecesDArchive::series);
    for (const auto &[vendeur, numero] : SeriesFactures(series_).asKeyValueRange())
        if (!vendeur.cas() || !NumerotationFactures::avance(numero, {})) {
            inconnus_.append(QStringLiteral("le numéro de facture « %1 »").arg(numero.left(20)));
            series_.remove(vendeur);
        }
}

void Reprise::prendre(const SeriesFactures &series, const QDateTime &maintenant)
{
    if (propres_)
        exigerLaPlace(demeure_.utilisateur);
    Copies(demeure_).avantReprise(maintenant);
    const QDir dossier(partielle(demeure_.utilisateur));
    Fichier::ecrire(dossier.filePath(PiecesDArchive::series), Json::encoder(series));
    Avancee::noter(dossier, noms_);
    Fichier::renommer(dossier.path(), engagee(demeure_.utilisateur)); // from now on it counts
    try {
        achever(demeure_.utilisateur, demeure_.preferences);
    } catch (const Echec &erreur) {
        throw RepriseInachevee(erreur.texte());
    }
}

void Reprise::achever(const QDir &utilisateur, const Preferences &preferences)
{
    const QString dossier = engagee(utilisateur);
    if (Fichier::existe(dossier)) {
        Avancee(QDir(dossier), utilisateur, preferences).jusquAuBout();
        Disque::supprimer(partielle(utilisateur));
        Fichier::renommer(dossier, partielle(utilisateur)); // at once: a half of it must not be taken again
    }
    oublier(utilisateur);
}

} // namespace Quillet
