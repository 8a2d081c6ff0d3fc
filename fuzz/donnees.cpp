// The first byte chooses a data file, the rest is what it holds: it is read, written, read
// again, checked, and computed with.
#include "documents/ArticleDouane.h"
#include "documents/Facture.h"
#include "documents/ReponseType.h"
#include "fuzz/Cible.h"
#include "model/Calcul.h"
#include "model/Catalogue.h"
#include "model/Format.h"
#include "model/controle/ControleDonnees.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <memory>

using namespace Quillet;

namespace {

// A copy of the shipped data, and a user's folder, in which one file is another for a while.
class Dossiers
{
public:
    Dossiers()
    {
        const QDir source(QStringLiteral("resources"));
        QDir(chemin({})).mkpath(QStringLiteral("partage/couvertures"));
        QDir(chemin({})).mkpath(QStringLiteral("utilisateur"));
        QStringList noms = source.entryList({QStringLiteral("*.json")});
        for (const QString &couverture : source.entryList({QStringLiteral("couvertures")}, QDir::Dirs))
            for (const QString &nom : QDir(source.filePath(couverture)).entryList(QDir::Files))
                noms.append(couverture + u'/' + nom);
        for (const QString &nom : noms)
            exiger(QFile::copy(source.filePath(nom), chemin(QStringLiteral("partage/") + nom)), "donnees livrees");
        exiger(controle().erreurs.isEmpty(), "donnees livrees sans erreur");
    }

    template <typename Usage>
    void avec(const QString &nom, const QByteArray &octets, Usage usage) const
    {
        QFile fichier(chemin(nom));
        const bool livre = fichier.exists();
        exiger(fichier.open(QIODevice::ReadWrite), "fichier ouvert");
        const QByteArray avant = fichier.readAll();
        remplir(fichier, octets);
        usage();
        if (livre)
            remplir(fichier, avant);
        for (const QFileInfo &reste : QDir(chemin(QStringLiteral("utilisateur"))).entryInfoList(QDir::Files))
            QFile::remove(reste.filePath());
        if (!livre)
            fichier.remove();
    }

    [[nodiscard]] std::unique_ptr<Catalogue> catalogue() const
    {
        return Catalogue::charge(Ressources(QDir(chemin(QStringLiteral("partage")))),
                                 Stockage(QDir(chemin(QStringLiteral("utilisateur")))));
    }

    [[nodiscard]] ControleDonnees controle() const
    {
        return ControleDonnees::de(QDir(chemin(QStringLiteral("partage"))), QDate(2026, 3, 2));
    }

private:
    [[nodiscard]] QString chemin(const QString &nom) const { return racine_.filePath(nom); }

    static void remplir(QFile &fichier, const QByteArray &octets)
    {
        exiger(fichier.resize(0) && fichier.seek(0) && fichier.write(octets) == octets.size() && fichier.flush(),
               "fichier ecrit");
    }

    QTemporaryDir racine_;
};

void ecrireTout(const Calcul &calcul)
{
    for (const auto &montant :
         {std::optional(calcul.sousTotal), calcul.envoi, calcul.total, calcul.fraisPaypal, calcul.reste})
        if (montant)
            exiger(Format::euros(*montant).contains(u'€') && Format::euros(*montant, Langue::anglais).contains(u'€'),
                   "montant");
    for (const Grammes poids : {calcul.poidsLivres, calcul.poidsEmballage, calcul.poidsCalcule, calcul.poidsRetenu})
        exiger(Format::poids(poids).endsWith(u'g'), "poids");
    exiger(calcul.poidsEmballage >= Grammes{}, "emballage");
    exiger(calcul.depasseLaGrille() ? !calcul.total : true, "au-dela de la grille");
    exiger(articlesDouane(calcul, QStringLiteral("4901")).size() == calcul.lignes.size(), "douane");
}

void rediger(const Calcul &calcul, const Reglages &reglages, const BonDeCommande &bon)
{
    const QDate jour(2026, 3, 2);
    if (const auto facture = Facture::de(calcul, reglages, QStringLiteral("2026-001"), jour, {}))
        exiger(facture->total() == calcul.total && facture->nomDeFichier().endsWith(QLatin1String(".pdf")), "facture");
    if (const auto reponse = ReponseType::de(calcul, reglages, bon))
        exiger(reponse->corps().contains(reponse->ligneTotal()) && !reponse->nomDeLObjet().isEmpty(), "reponse");
}

// The largest order of each seller to every destination, the packagings in turn.
void calculer(const Catalogue &catalogue)
{
    const QList<Emballage> &emballages = catalogue.donnees().reglages.emballages;
    for (const Vendeur vendeur : tous<Vendeur>) {
        BonDeCommande bon{.vendeur = vendeur};
        for (const Livre &livre : catalogue.donnees().livres)
            bon.ajuster(livre, BonDeCommande::quantiteMaximale);
        qsizetype tour = 0;
        for (const Destination &destination : catalogue.donnees().destinations) {
            if (!emballages.isEmpty())
                bon.emballage = emballages[tour++ % emballages.size()].nom;
            bon.codeDestination = destination.code;
            const Calcul calcul = Calcul::de(catalogue.donnees(), bon, QDate(2026, 3, 2));
            ecrireTout(calcul);
            rediger(calcul, catalogue.donnees().reglages, bon);
        }
    }
}

// Every button of every book charges its new price: what is written then, the next start reads.
void reporter(Catalogue &catalogue, const Dossiers &dossiers)
{
    QList<Livre> livres = catalogue.donnees().livres;
    QSet<qint64> numeros;
    for (Livre &livre : livres) {
        numeros.insert(livre.id);
        for (const PrixBouton &bouton :
             PrixBouton::aReporter(catalogue.donnees().boutons(livre, catalogue.donnees().grillesConnues.last()))) {
            exiger(bouton.calcule && bouton.calcule != bouton.actuel, "bouton");
            PrixParDestination prix = livre.prixPaypal.value_or(PrixParDestination());
            prix.insert(bouton.destination.code, *bouton.calcule);
            livre.prixPaypal = prix;
        }
    }
    if (numeros.size() < livres.size())
        return; // `ControleDonnees` says so
    catalogue.modifier(livres);
    exiger(dossiers.catalogue()->donnees().livres == livres, "prix reportes");
}

template <typename T>
void essayer(const QByteArray &octets, const QString &fichier)
{
    static const Dossiers dossiers;
    try {
        const auto valeur = Json::decoder<T>(octets, fichier);
        exiger(Json::decoder<T>(Json::encoder(valeur), fichier) == valeur, "aller et retour");
    } catch (const Json::Erreur &erreur) {
        exiger(!erreur.texte().isEmpty(), "erreur sans texte");
        if (fichier.startsWith(QLatin1String("partage")) && !QJsonDocument::fromJson(octets).isNull())
            dossiers.avec(fichier, octets, [] { exiger(!dossiers.controle().erreurs.isEmpty(), "erreur controlee"); });
        return;
    }
    dossiers.avec(fichier, octets, [] {
        const auto catalogue = dossiers.catalogue();
        calculer(*catalogue);
        for (const TarifsColissimo &tarifs : catalogue->donnees().grillesConnues)
            exiger(!Format::date(tarifs.validite).isEmpty() || tarifs.validite.texte().isEmpty(), "date");
        reporter(*catalogue, dossiers);
        exiger(!dossiers.controle().bilan().isEmpty(), "bilan");
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    if (taille == 0)
        return 0;
    const QByteArray fichier = contenu(octets + 1, taille - 1);
    switch (octets[0]) {
    case 'l':
        essayer<QList<Livre>>(fichier, QStringLiteral("partage/livres.json"));
        break;
    case 'd':
        essayer<QList<Destination>>(fichier, QStringLiteral("partage/destinations.json"));
        break;
    case 'p':
        essayer<QList<Pays>>(fichier, QStringLiteral("partage/pays.json"));
        break;
    case 'r':
        essayer<Reglages>(fichier, QStringLiteral("partage/reglages.json"));
        break;
    case 't':
        essayer<TarifsColissimo>(fichier, QStringLiteral("partage/tarifs-colissimo-2026-02-01.json"));
        break;
    case 'f':
        essayer<FraisPaypal>(fichier, QStringLiteral("utilisateur/frais-paypal.json"));
        break;
    case 'm':
        essayer<ModificationsLivres>(fichier, QStringLiteral("utilisateur/livres-modifies.json"));
        break;
    default:
        break;
    }
    return 0;
}
