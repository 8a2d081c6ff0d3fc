#include "tests/Banc.h"
#include "tests/Rangees.h"

#include <QSignalSpy>

using namespace Quillet;

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void tarifsDUnJour()
    {
        Banc banc;
        banc.tarifs = {desTarifs("2026-01-01", Centimes{549}), desTarifs("2027-01-01", Centimes{579}),
                       desTarifs("2025-01-01", Centimes{525})};
        const Donnees donnees = banc.donnees();
        for (const auto &[jour, enVigueur, aVenir] : Rangees<const char *, const char *>{
                 {"2024-06-01", "2025-01-01", "2025-01-01"},
                 {"2025-01-01", "2025-01-01", "2026-01-01"},
                 {"2025-12-31", "2025-01-01", "2026-01-01"},
                 {"2026-01-01", "2026-01-01", "2027-01-01"},
                 {"2031-05-05", "2027-01-01", ""},
             }) {
            const Rangee rangee(jour);
            QCOMPARE(donnees.tarifs(Jour(jour)).validite.texte(), enVigueur);
            const auto prochains = donnees.tarifsAVenir(Jour(jour));
            QCOMPARE(prochains ? prochains->validite.texte() : QString(), aVenir);
        }
    }

    void grillesEnregistreesAvantLesLivrees()
    {
        Banc banc;
        const auto premier = [](const Catalogue &c, QDate jour) {
            return c.donnees().tarifs(jour).grilles[0].paliers[0].prix;
        };
        const char *const debut2026 = "2026-01-01";
        {
            const auto catalogue = banc.charger();
            QSignalSpy change(catalogue.get(), &Catalogue::change);
            catalogue->enregistrer(desTarifs(debut2026, Centimes{600}));
            catalogue->enregistrer(desTarifs("2027-01-01", Centimes{700}));
            QCOMPARE(change.count(), 2);
            QCOMPARE(catalogue->donnees().grillesConnues.size(), 2);
            QCOMPARE(premier(*catalogue, {2026, 1, 1}), Centimes{600});
        }
        banc.ecrireUtilisateur("tarifs-colissimo-abime.json", R"({"validite":"2030-01-01"})");
        banc.ecrireUtilisateur("tarifs-colissimo-bis.json", Json::encoder(desTarifs(debut2026, Centimes{610})));
        const auto relu = banc.charger();
        QCOMPARE(relu->donnees().grillesConnues.size(), 2);
        QCOMPARE(premier(*relu, {2026, 1, 1}), Centimes{610});
        QCOMPARE(premier(*relu, {2028, 1, 1}), Centimes{700});
    }

    void connaitParLesPrix()
    {
        const Donnees donnees = Banc().donnees();
        auto lus = desTarifs("2029-01-01", Centimes{549});
        std::swap(lus.grilles[0], lus.grilles[1]);
        QVERIFY(donnees.connait(lus));
        lus.grilles[0].paliers[1].prix += Centimes{1};
        QVERIFY(!donnees.connait(lus));
        lus = desTarifs("2026-01-01", Centimes{549});
        lus.grilles.append(lus.grilles[0]);
        QVERIFY(!donnees.connait(lus));
    }

    void modificationsAppliquees()
    {
        const PrixParDestination livres{{vers("france"), Centimes{2000}}};
        for (const auto &[nom, fichier, appliquee, ecartes] : Rangees<const char *, bool, PrixParDestination>{
                 {"prix écartés absents : gardés",
                  R"({"1":{"prix":1700,"disponible":false}, "99":{"prix":1,"disponible":true}})", true, livres},
                 {"prix écartés vides : remplacés",
                  R"({"1":{"prix":1700,"disponible":false,"prixEcartes":{}}})",
                  true,
                  {}},
                 {"fichier abîmé : ignoré", R"({"1":{"prix":1700)", false, livres},
                 {"une valeur abîmée : tout est ignoré",
                  R"({"1":{"prix":1700,"disponible":false}, "3":{"prix":1.5,"disponible":true}})", false, livres},
             }) {
            const Rangee rangee(nom);
            Banc banc;
            banc.livres[0].prixPaypal = banc.livres[0].prixEcartes = livres;
            banc.ecrireUtilisateur("livres-modifies.json", fichier);
            const auto catalogue = banc.charger();
            const Livre &livre = catalogue->donnees().livres[0];
            QCOMPARE(livre.prix, appliquee ? Centimes{1700} : Centimes{1500});
            QCOMPARE(livre.poids.has_value(), !appliquee);
            QCOMPARE(livre.prixPaypal.has_value(), !appliquee);
            QCOMPARE(livre.disponible, !appliquee);
            QCOMPARE(*livre.prixEcartes, ecartes);
        }
    }

    void ressourceManquante()
    {
        const Banc banc;
        banc.deposer();
        QVERIFY(QFile::remove(banc.ressources().chemin("livres.json")));
        banc.ecrireRessource("livres.json/obstacle", {});
        try {
            Catalogue::charge(banc.ressources(), banc.stockage());
            QFAIL("chargement accepté");
        } catch (const RessourceIllisible &illisible) {
            QCOMPARE(illisible.texte(), "Ressource illisible : livres.json : un dossier occupe la place du fichier");
        }
    }

    void fraisEnregistres()
    {
        const Banc banc;
        FraisPaypal frais = banc.reglages.fraisPaypal;
        frais.taux = Taux{310};
        banc.charger()->enregistrer(frais);
        QCOMPARE(banc.charger()->donnees().reglages.fraisPaypal, frais);
        banc.ecrireUtilisateur("frais-paypal.json", "[]");
        QCOMPARE(banc.charger()->donnees().reglages.fraisPaypal, banc.reglages.fraisPaypal);
    }

    void prixDesBoutons()
    {
        using Etat = PrixBouton::Etat;
        using Prix = std::optional<Centimes>;
        const Prix leger(Centimes{2049});
        const Prix lourd(Centimes{2259});
        const Prix autre(Centimes{2000});
        for (const auto &[nom, poids, emballage, destination, actuel, ecarte, calcule, etat] :
             Rangees<std::optional<Grammes>, int, const char *, Prix, Prix, Prix, Etat>{
                 // packaging in grams, -1: none at all
                 {"à jour", Grammes{210}, 40, "france", leger, {}, leger, Etat::aJour},
                 {"à jour, écarté naguère", Grammes{210}, 40, "france", leger, leger, leger, Etat::aJour},
                 {"gardé", Grammes{210}, 40, "ue", autre, leger, leger, Etat::garde},
                 {"gardé sans bouton", Grammes{210}, 40, "ue", {}, leger, leger, Etat::garde},
                 {"à reporter", Grammes{210}, 40, "suisse", autre, {}, leger, Etat::aReporter},
                 {"sans bouton", Grammes{210}, 40, "suisse", {}, {}, leger, Etat::aReporter},
                 {"un gramme de trop", Grammes{210}, 41, "france", leger, {}, lourd, Etat::aReporter},
                 {"un autre prix était gardé", Grammes{210}, 41, "ue", autre, leger, lourd, Etat::aReporter},
                 {"aucun emballage", Grammes{250}, -1, "france", leger, {}, leger, Etat::aJour},
                 {"trop lourd", Grammes{1961}, 40, "france", leger, {}, {}, Etat::sansPrix},
                 {"pas de grille", Grammes{210}, 40, "lune", autre, {}, {}, Etat::sansPrix},
                 {"jamais pesé", {}, 40, "france", autre, {}, {}, Etat::sansPrix},
             }) {
            const Rangee rangee(nom);
            Banc banc;
            banc.livres[0].poids = poids;
            if (actuel)
                banc.livres[0].prixPaypal = {{vers(destination), *actuel}};
            if (ecarte)
                banc.livres[0].prixEcartes = {{vers(destination), *ecarte}};
            banc.reglages.emballages.clear();
            if (emballage >= 0)
                banc.reglages.emballages = {{"Enveloppe", Grammes{emballage}}};
            const auto boutons = banc.donnees().boutons(banc.livres[0], banc.tarifs[0]);
            const auto bouton =
                std::ranges::find(boutons, vers(destination), [](const PrixBouton &du) { return du.destination.code; });
            QCOMPARE(bouton->calcule, calcule);
            QCOMPARE(bouton->etat(), etat);
            QCOMPARE(bouton->actuel, actuel);
            QCOMPARE(bouton->envoi.has_value() && bouton->palier.has_value(), bouton->calcule.has_value());
        }
    }

    // What a button may be reported at can be read back: one unreadable figure would lose every edit of every book.
    void leBoutonLePlusCher()
    {
        const Banc banc;
        const auto catalogue = banc.charger();
        Livre livre = catalogue->donnees().livres[0];
        livre.prix = Centimes{UniteCentime::maximum};
        catalogue->modifier({livre});
        const auto boutons = catalogue->donnees().boutons(livre, desTarifs("2026-01-01", livre.prix));
        catalogue->reporter(livre, boutons);
        QCOMPARE(banc.charger()->donnees().livres, catalogue->donnees().livres);
    }

    void garderPuisReporter()
    {
        const Banc banc;
        const auto catalogue = banc.charger();
        const auto lignes = [&] {
            return PrixBouton::calculer(catalogue->donnees().livres[0], banc.tarifs[0], banc.destinations, Grammes{40});
        };
        const Livre livre = catalogue->donnees().livres[0];
        catalogue->garder(livre, lignes()[0]);
        catalogue->garder(livre, lignes()[1]);
        QCOMPARE(lignes()[0].etat(), PrixBouton::Etat::garde);
        catalogue->reporter(livre, {lignes()[0], lignes()[3]});
        QCOMPARE(lignes()[0].etat(), PrixBouton::Etat::aJour);
        QVERIFY(!lignes()[0].ecarte);
        QCOMPARE(lignes()[1].etat(), PrixBouton::Etat::garde);
        QVERIFY(!lignes()[3].actuel);
        QCOMPARE(banc.charger()->donnees().livres, catalogue->donnees().livres);
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
