#include "echanges/Reprise.h"

#include "documents/NumerotationFactures.h"
#include "echanges/Avancee.h"
#include "echanges/Copies.h"
#include "echanges/Disque.h"
#include "echanges/PiecesDArchive.h"
#include "model/controle/ControleDonnees.h"

#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace Quillet {

namespace {

// The first of what there is to say: one mistake of a program that wrote a file can come back with each book.
constexpr qsizetype phrasesAuPlus = 5;

const QString partielle = QStringLiteral("reprise.partielle.");

// Two archives may be looked at together: each in a folder of its own.
QString nouvellePartielle(const QDir &utilisateur)
{
    return utilisateur.filePath(partielle + QUuid::createUuid().toString(QUuid::Id128).first(8));
}

QDir engagee(const QDir &utilisateur)
{
    return {utilisateur.filePath(QStringLiteral("reprise"))};
}

void oublier(const QString &dossier)
{
    try {
        Disque::supprimer(dossier);
    } catch (const ErreurStockage &) {
        return; // nothing reads it, and the next start tries again
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

bool memesOctets(const QString &un, const QString &autre)
{
    return QFileInfo(un).size() == QFileInfo(autre).size()
           && Fichier::lire(un, Fichier::Borne::image) == Fichier::lire(autre, Fichier::Borne::image);
}

void exigerTout(const QDir &dossier, const QStringList &noms)
{
    for (const QString &nom : noms)
        if (!Fichier::existe(dossier.filePath(nom)))
            throw ErreurStockage(dossier.filePath(nom), QStringLiteral("fichier introuvable"));
}

void nommer(const QString &dossier, const QDir &utilisateur)
{
    try {
        Fichier::renommer(dossier, engagee(utilisateur).path());
    } catch (const ErreurStockage &erreur) {
        if (engagee(utilisateur).exists()) // the disk refused to take the new name, then the former one
            throw RepriseInachevee(erreur.texte());
        throw;
    }
}

void poursuivre(const std::function<void()> &etape)
{
    try {
        etape();
    } catch (const Echec &erreur) {
        throw RepriseInachevee(erreur.texte());
    }
}

} // namespace

RepriseInachevee::RepriseInachevee(const QString &raison)
    : Echec(QStringLiteral("Import inachevé : %1\n\nQuillet l’achèvera à son prochain démarrage, dès que ce sera "
                           "possible. Rien n’est perdu.")
                .arg(raison))
{
}

std::unique_ptr<Reprise> Reprise::preparer(const QString &archive, const Demeure &demeure, QDate aujourdhui,
                                           const Controle &controler)
{
    const auto ouvrir = [&](const QString &dossier) { return Archive::deballer(archive, dossier); };
    return std::unique_ptr<Reprise>(new Reprise(demeure, aujourdhui, ouvrir, controler));
}

std::unique_ptr<Reprise> Reprise::regarder(const QString &archive, const Demeure &demeure, QDate aujourdhui)
{
    const auto ouvrir = [&](const QString &dossier) { return Archive::entrouvrir(archive, dossier); };
    return std::unique_ptr<Reprise>(new Reprise(demeure, aujourdhui, ouvrir, duProgramme));
}

Reprise::Reprise(const Demeure &demeure, QDate aujourdhui, const Ouverture &ouvrir, const Controle &controler)
    : demeure_(demeure), dossier_(nouvellePartielle(demeure.utilisateur))
{
    try {
        Fichier::creerDossier(dossier_.path());
        const Archive::Contenu contenu = ouvrir(dossier_.path());
        manifeste_ = contenu.manifeste;
        noms_ = contenu.noms;
        inconnus_ = contenu.inconnus;
        laisserLesMauvaisesImages(controler);
        charger(aujourdhui);
    } catch (...) {
        oublier(dossier_.path());
        throw;
    }
}

Reprise::~Reprise()
{
    oublier(dossier_.path());
}

// Those in force already are shown as they are, and a copy that was made of them comes back whole.
void Reprise::laisserLesMauvaisesImages(const Controle &controler)
{
    QStringList nouvelles;
    for (const QString &nom : noms_)
        if (nom.startsWith(PiecesDArchive::couvertures)
            && !memesOctets(dossier_.filePath(nom),
                            demeure_.donnees.chemin(nom.sliced(PiecesDArchive::propres.size()))))
            nouvelles.append(dossier_.filePath(nom));
    for (const QString &chemin : controler(nouvelles)) {
        noms_.removeAll(dossier_.relativeFilePath(chemin));
        inconnus_.append(
            QStringLiteral("l’image « %1 », abîmée, démesurée ou incomplète").arg(QFileInfo(chemin).fileName()));
        Disque::supprimer(chemin);
    }
}

void Reprise::charger(QDate aujourdhui)
{
    propres_ = std::ranges::any_of(noms_, [](const QString &nom) { return nom.startsWith(PiecesDArchive::propres); });
    laisserOuPrendreLesModifications();
    const Ressources donnees =
        propres_ ? Ressources(QDir(dossier_.filePath(PiecesDArchive::propres.chopped(1))), Origine::utilisateur)
                 : demeure_.donnees;
    const ControleDonnees controle = ControleDonnees::de(donnees.dossier(), aujourdhui);
    const QStringList phrases = controle.erreurs.first(qMin(controle.erreurs.size(), phrasesAuPlus));
    try {
        exigerLisible<FraisPaypal>(dossier_, Stockage::fichierDesFrais());
        exigerLisible<ModificationsLivres>(dossier_, Stockage::fichierDesLivres());
        for (const QString &nom : noms_)
            if (PiecesDArchive::estUnTarif(nom))
                exigerLisible<TarifsColissimo>(dossier_, nom);
        lireLesSeries();
        completer();
        donnees_ = Catalogue::charge(donnees, Stockage(dossier_))->donnees();
    } catch (const RessourceIllisible &) {
        throw Echec(
            QStringLiteral("Les données de cette archive ne peuvent pas être lues :\n%1").arg(phrases.join(u'\n')));
    } catch (const Json::Erreur &erreur) {
        throw Echec(QStringLiteral("Les données de cette archive ne peuvent pas être lues :\n%1").arg(erreur.texte()));
    }
    if (propres_)
        remarques_ = phrases;
}

// Changes of books stand over the example's: with others in force, the archive's name others' numbers.
void Reprise::laisserOuPrendreLesModifications()
{
    const QString nom = Stockage::fichierDesLivres();
    if (!propres_ && demeure_.donnees.origine() == Origine::exemple) {
        if (!noms_.contains(nom)) { // the books as they are shipped
            Fichier::ecrire(dossier_.filePath(nom), Json::encoder(ModificationsLivres()));
            noms_.append(nom);
        }
    } else if (noms_.removeAll(nom) > 0) {
        inconnus_.append(QStringLiteral("« %1 »").arg(nom));
        Disque::supprimer(dossier_.filePath(nom));
    }
}

// What the archive does not have of these stays in force; beside the archive's, not among what is taken.
void Reprise::completer() const
{
    for (const QString &nom : Disque::fichiers(demeure_.utilisateur.path())) {
        const bool reste = PiecesDArchive::estUnTarif(nom) || nom == Stockage::fichierDesFrais()
                           || (nom == Stockage::fichierDesLivres() && !propres_);
        if (!reste || noms_.contains(nom))
            continue;
        if (const auto octets = Fichier::lire(demeure_.utilisateur.filePath(nom), Fichier::Borne::donnees))
            Fichier::ecrire(dossier_.filePath(nom), *octets);
    }
}

void Reprise::lireLesSeries()
{
    const auto octets = Fichier::lireOuRefuser(dossier_.filePath(PiecesDArchive::series), Fichier::Borne::preferences);
    if (!octets)
        return;
    series_ = Json::decoder<SeriesFactures>(*octets, PiecesDArchive::series);
    for (const auto &[vendeur, numero] : SeriesFactures(series_).asKeyValueRange())
        if (!vendeur.cas() || !NumerotationFactures::avance(numero, {})) {
            inconnus_.append(QStringLiteral("le numéro de facture « %1 »").arg(numero.left(20)));
            series_.remove(vendeur);
        }
}

void Reprise::prendre(const SeriesFactures &series, const QDateTime &maintenant, const Attente &attendre)
{
    poursuivreJusquAuBout(attendre, [&] {
        if (propres_)
            exigerLaPlace(demeure_.utilisateur);
        exigerTout(dossier_, noms_);
        Copies(demeure_).avantReprise(maintenant);
        engager(series, {});
    });
}

QString Reprise::prendreALaPlace(const QDateTime &maintenant, const Attente &attendre)
{
    if (!propres_)
        throw Echec(QStringLiteral("Cette copie n’a pas de livres à vous."));
    const QString ecart =
        QStringLiteral("donnees.illisible-%1").arg(maintenant.toString(QStringLiteral("yyyy-MM-dd-HHmmss-zzz")));
    poursuivreJusquAuBout(attendre, [&] {
        Disque::exigerQuIlSeDeplace(demeure_.utilisateur.filePath(PiecesDArchive::propres.chopped(1)));
        exigerTout(dossier_, noms_);
        Copies(demeure_).avantReprise(maintenant, Bagage::Propres::laissees);
        engager({}, ecart);
    });
    return demeure_.utilisateur.filePath(ecart);
}

void Reprise::poursuivreJusquAuBout(const Attente &attendre, const std::function<void()> &commencer) const
{
    attendre([&] {
        commencer();
        poursuivre([&] { Avancee(engagee(demeure_.utilisateur), demeure_.utilisateur).placerLesFichiers(); });
    });
    poursuivre([&] { finir(demeure_.utilisateur, demeure_.preferences); });
}

void Reprise::engager(const SeriesFactures &series, const QString &ecart) const
{
    Fichier::ecrire(dossier_.filePath(PiecesDArchive::series), Json::encoder(series));
    Avancee::noter(dossier_, noms_, ecart);
    nommer(dossier_.path(), demeure_.utilisateur); // from now on it counts
}

void Reprise::finir(const QDir &utilisateur, const Preferences &preferences)
{
    Avancee(engagee(utilisateur), utilisateur).placerLesSeries(preferences);
    const QString reste = nouvellePartielle(utilisateur);
    Fichier::renommer(engagee(utilisateur).path(), reste); // at once: a half of it must not be taken again
    oublier(reste);
}

void Reprise::achever(const QDir &utilisateur, const Preferences &preferences)
{
    if (Fichier::existe(engagee(utilisateur).path())) {
        Avancee(engagee(utilisateur), utilisateur).placerLesFichiers();
        finir(utilisateur, preferences);
    }
    for (const QString &reste : utilisateur.entryList({partielle + u'*'}, QDir::Dirs))
        oublier(utilisateur.filePath(reste));
}

} // namespace Quillet
