#include "model/Commande.h"
#include "model/DossierPersonnel.h"
#include "model/EditionLivres.h"
#include "model/EditionReglages.h"
#include "model/Historique.h"
#include "model/controle/Objections.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace Quillet;

namespace {

// The bench's books, made the sellers' own.
struct BancPersonnel : Banc
{
    BancPersonnel()
    {
        deposer();
        DossierPersonnel::creer(stockage().donneesPersonnelles(), ressources(), reglages, livres, {});
    }
    [[nodiscard]] QString chemin(const QString &nom) const { return cheminUtilisateur("donnees/" + nom); }
    [[nodiscard]] std::unique_ptr<Catalogue> ouvrir() const
    {
        return Catalogue::charge(Ressources::enVigueur(stockage().donneesPersonnelles()), stockage());
    }
};

QStringList titres(const Catalogue &catalogue)
{
    QStringList titres;
    for (const Livre &livre : catalogue.donnees().livres)
        titres.append(livre.titre);
    return titres;
}

} // namespace

class TestDonneesPersonnelles : public QObject
{
    Q_OBJECT

private slots:
    void tiennentLieuDeLExemple()
    {
        const Banc vide;
        QCOMPARE(Ressources::enVigueur(vide.stockage().donneesPersonnelles()).origine(), Origine::exemple);

        BancPersonnel banc;
        banc.ecrireUtilisateur(Stockage::fichierDesLivres(), R"({"1":{"prix":1,"disponible":false}})");
        const auto catalogue = banc.ouvrir();
        QVERIFY(catalogue->donnees().personnelles);
        QCOMPARE(catalogue->donnees().livres, banc.livres); // what was changed of shipped books is not theirs
        QCOMPARE(catalogue->donnees().destinations, banc.destinations);
        QCOMPARE(catalogue->donnees().grillesConnues, banc.tarifs);
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, DossierPersonnel::creer(banc.stockage().donneesPersonnelles(),
                                                                         banc.ressources(), banc.reglages, {}, {}));
        QCOMPARE(titres(*banc.ouvrir()).size(), banc.livres.size());

        Fichier::ecrire(banc.chemin("livres.json"), "[");
        QVERIFY_THROWS_EXCEPTION(RessourceIllisible, static_cast<void>(banc.ouvrir()));
        QVERIFY_THROWS_EXCEPTION(RessourceIllisible, catalogue->recharger());
        QCOMPARE(catalogue->donnees().livres, banc.livres);
    }

    void unLivreSEcritDansSonFichier()
    {
        BancPersonnel banc;
        const auto catalogue = banc.ouvrir();
        Historique historique(*catalogue);
        const QStringList avant = titres(*catalogue);
        const auto estEcrit = [&] {
            return Fichier::lire(banc.chemin("livres.json"), 100'000) == Json::encoder(catalogue->donnees().livres);
        };

        Livre livre = catalogue->donnees().livres[0];
        livre.titre = "Autre titre";
        livre.prix = Centimes{4321};
        historique.modifier(livre, "titre");
        QVERIFY(estEcrit());
        QList<Livre> livres = catalogue->donnees().livres;
        livres.append(unLivre(77, Vendeur::mireva, Centimes{900}, {}));
        historique.remplacer(livres, "ajout");
        QVERIFY(estEcrit());
        livres.removeFirst();
        std::ranges::reverse(livres);
        historique.remplacer(livres, "retrait");
        QVERIFY(estEcrit());
        historique.remplacer(QList<Livre>(), "tout");
        QVERIFY(estEcrit());
        historique.annuler();
        QCOMPARE(banc.ouvrir()->donnees().livres, livres);
        QVERIFY(!QFile::exists(banc.cheminUtilisateur(Stockage::fichierDesLivres())));

        QCOMPARE(historique.annuler(), 1);
        QVERIFY(historique.annuler());
        QCOMPARE(historique.aAnnuler(), "titre");
        QCOMPARE(banc.ouvrir()->donnees().livres.first(), livre);
        historique.annuler();
        QCOMPARE(titres(*banc.ouvrir()), avant);
        historique.retablir();
        QCOMPARE(historique.retablir(), 77);
        historique.retablir();
        QCOMPARE(banc.ouvrir()->donnees().livres, livres);

        Reglages reglages = catalogue->donnees().reglages;
        reglages.emballages.first().nom = "Sac";
        reglages.fraisPaypal.fixe = Centimes{1}; // only accepted with the others
        FraisPaypal frais = catalogue->donnees().reglages.fraisPaypal;
        frais.fixe = Centimes{99};
        catalogue->enregistrer(frais);
        historique.remplacer(reglages, "emballage");
        QVERIFY(Fichier::lire(banc.chemin("reglages.json"), 100'000) // another computer has not accepted them
                == Json::encoder([&] {
                       Reglages ecrits = reglages;
                       ecrits.fraisPaypal = banc.reglages.fraisPaypal;
                       return ecrits;
                   }()));
        QCOMPARE(banc.ouvrir()->donnees().reglages.emballages.first().nom, "Sac");
        QCOMPARE(banc.ouvrir()->donnees().reglages.fraisPaypal, frais);
        QVERIFY(!historique.annuler());
        QCOMPARE(banc.ouvrir()->donnees().reglages.emballages, banc.reglages.emballages);
    }

    // A new order starts with what the data say; the one in progress lets go of what they do not have any more.
    void laCommandeSuit()
    {
        Banc banc;
        Donnees donnees = banc.donnees();
        QCOMPARE(donnees.vendeurs().size(), 2);
        Commande commande;
        commande.commencer(donnees);
        QCOMPARE(commande.bon(), BonDeCommande());

        donnees.personnelles = true;
        donnees.reglages.vendeurs.remove(Vendeur::davrel);
        donnees.livres.removeIf([](const Livre &livre) { return livre.vendeur == Vendeur::davrel; });
        donnees.reglages.emballages.append({"Sac", Grammes{12}});
        donnees.reglages.emballageDeDepart = "Sac";
        commande.ajuster(banc.livres[0], 2);
        commande.setEmballage("Disparu");
        commande.suivre(banc.donnees(), donnees);
        QCOMPARE(commande.bon().vendeur, Vendeur::mireva);
        QCOMPARE(commande.bon().emballage, "Sac");
        QVERIFY(commande.bon().estVide());
        commande.setEmballage(BonDeCommande::autrePoids());
        commande.suivre(donnees, donnees);
        QCOMPARE(commande.bon().emballage, BonDeCommande::autrePoids());
        commande.ajuster(banc.livres[1], 1);
        commande.vider();
        commande.commencer(donnees);
        QCOMPARE(commande.bon().emballage, "Sac");
        QVERIFY(!commande.peutRendre()); // those numbers may be other books
    }

    // A book that comes back brings its copies, if the order is as it was left; never another book of its number.
    void unLivreRetireRevient()
    {
        using Gestes = std::function<void(Commande &, Catalogue &, Historique &)>;
        const auto ajouter = [](Catalogue &catalogue, Historique &historique) {
            historique.remplacer(EditionLivres::avec(catalogue.donnees().livres, {.titre = "Autre"}), "ajout");
            return catalogue.donnees().livres.last();
        };
        const auto autre = [&](Commande &, Catalogue &catalogue, Historique &historique) {
            ajouter(catalogue, historique);
            historique.annuler();
        };
        const auto autreVendu = [&](Commande &commande, Catalogue &catalogue, Historique &historique) {
            commande.ajuster(ajouter(catalogue, historique), 1);
            historique.annuler();
        };
        for (const auto &[nom, entretemps, copies] : Rangees<Gestes, int>{
                 {"rien", [](auto &...) {}, 2},
                 {"un pays", [](Commande &commande, auto &...) { commande.setPaysLivraison("Ici"); }, 2},
                 {"un autre livre", [](Commande &commande, auto &...) { commande.ajuster({.id = 1}, 1); }, 0},
                 {"vidée", [](Commande &commande, auto &...) { commande.vider(); }, 0},
                 {"son numéro à un autre", autre, 2},
                 {"vendu sous son numéro", autreVendu, 0},
             }) {
            const Rangee rangee(nom);
            BancPersonnel banc;
            const auto catalogue = banc.ouvrir();
            Historique historique(*catalogue);
            Commande commande;
            commande.commencer(catalogue->donnees());
            connect(catalogue.get(), &Catalogue::change, &commande, [&, avant = catalogue->donnees()]() mutable {
                const Donnees ancien = std::exchange(avant, catalogue->donnees());
                commande.suivre(ancien, avant);
            });
            const Livre dernier = catalogue->donnees().livres.last();
            commande.ajuster(dernier, 2);
            historique.remplacer(EditionLivres::sans(catalogue->donnees().livres, dernier.id), "retrait");
            entretemps(commande, *catalogue, historique);
            QCOMPARE(commande.bon().quantite(dernier), 0);
            historique.annuler();
            QCOMPARE(catalogue->donnees().livres.last(), dernier);
            QCOMPARE(commande.bon().quantite(dernier), copies);
        }
    }

    // The order in progress keeps its parcel, and a new one its packaging, under whatever name.
    void lesEmballagesChangent()
    {
        Banc banc;
        Donnees donnees = banc.donnees();
        donnees.personnelles = true;
        donnees.reglages.emballages.append({"Sac", Grammes{12}});
        const auto noms = [&] {
            QStringList lignes;
            for (const Emballage &emballage : donnees.reglages.emballages)
                lignes.append(emballage.nom);
            return lignes.join(u' ') + u'|' + BonDeCommande::emballageDeDepart(donnees.reglages);
        };
        Commande commande;
        commande.commencer(donnees);
        const auto faire = [&](const Reglages &apres) {
            const Donnees avant = donnees;
            donnees.reglages = apres;
            commande.suivre(avant, donnees);
            return commande.bon().emballage;
        };
        QCOMPARE(faire(EditionReglages::emballageRenomme(donnees.reglages, 0, "Bulles")), "Bulles");
        QCOMPARE(noms(), "Bulles Carton Sac|Bulles");
        commande.setEmballage("Sac");
        QCOMPARE(faire(EditionReglages::emballageRenomme(donnees.reglages, 2, "Toile")), "Toile");
        QCOMPARE(faire(EditionReglages::emballageDeplace(donnees.reglages, 2, -2)), "Toile");
        QCOMPARE(noms(), "Toile Bulles Carton|Bulles");
        QCOMPARE(faire(EditionReglages::emballageDeplace(donnees.reglages, 2, 1)), "Toile");
        QCOMPARE(noms(), "Toile Bulles Carton|Bulles");
        QCOMPARE(faire(EditionReglages::sansEmballage(donnees.reglages, 0)), "Bulles");
        QCOMPARE(faire(EditionReglages::sansEmballage(donnees.reglages, 0)), "Carton");
        QCOMPARE(noms(), "Carton|Carton");
        QCOMPARE(faire(EditionReglages::sansEmballage(donnees.reglages, 0)), BonDeCommande::autrePoids());
        faire(EditionReglages::avecEmballage(EditionReglages::avecEmballage(donnees.reglages)));
        QCOMPARE(noms(), "Nouvel emballage Nouvel emballage 2|" + BonDeCommande::autrePoids());
        // The weight is typed, whatever else bears that name.
        faire(EditionReglages::emballageRenomme(donnees.reglages, 0, BonDeCommande::autrePoids()));
        QCOMPARE(faire(EditionReglages::emballageRenomme(donnees.reglages, 0, "Sac")), BonDeCommande::autrePoids());
    }

    void lesObjectionsSontCellesDuChamp()
    {
        const Objections::ParChamp avant{{"emballages[1].nom", "pris"}, {"vendeurs.davrel.nomCourt", "vide"}};
        for (const auto &[champ, dite, nouvelle] : Rangees<const char *, const char *>{
                 {"vendeurs.davrel.nomCourt", "vide", "vide"},
                 {"vendeurs.davrel.nom", "", "ailleurs"}, // which the other's name begins with
                 {"emballages", "pris", "pris"},
                 {"emballages[1]", "pris", "pris"},
                 {"emballages[1].nom.suite", "", "ailleurs"},
             }) {
            const Rangee rangee(champ);
            QCOMPARE(Objections::auChamp(avant, champ), dite);
            Objections::ParChamp apres = avant;
            QCOMPARE(Objections::nouvelle(avant, apres, "douane"), "");
            apres.insert("site", "ailleurs");
            QCOMPARE(Objections::nouvelle(avant, apres, champ), nouvelle);
        }
    }

    void rienNEstEcritParDessusUnAutre()
    {
        BancPersonnel banc;
        const auto ici = banc.ouvrir();
        const auto ailleurs = banc.ouvrir();
        QVERIFY(ici->personnel()->changes().isEmpty());
        Livre livre = ailleurs->donnees().livres[1];
        livre.prix = Centimes{5};
        ailleurs->modifier({livre});
        QVERIFY(ailleurs->personnel()->changes().isEmpty());
        QCOMPARE(ici->personnel()->changes(), QStringList{"livres.json"});

        Historique historique(*ici);
        const QList<Livre> avant = ici->donnees().livres;
        Livre autre = avant[0];
        autre.prix = Centimes{6};
        QVERIFY_THROWS_EXCEPTION(DonneesChangees, historique.modifier(autre, "prix"));
        QCOMPARE(ici->donnees().livres, avant);
        QCOMPARE(banc.ouvrir()->donnees().livres[1], livre);

        const QSignalSpy recharges(ici.get(), &Catalogue::recharge);
        ici->recharger();
        QCOMPARE(recharges.count(), 1);
        QCOMPARE(ici->donnees().livres[1], livre);
        historique.modifier(autre, "prix");
        QCOMPARE(banc.ouvrir()->donnees().livres[0], autre);

        QVERIFY(QFile::remove(banc.chemin("reglages.json")));
        QVERIFY_THROWS_EXCEPTION(DonneesChangees, ici->remplacer(Reglages{}));
        QVERIFY_THROWS_EXCEPTION(RessourceIllisible, ici->recharger()); // never the example's
    }
};

QTEST_MAIN(TestDonneesPersonnelles)
#include "tst_donnees_personnelles.moc"
