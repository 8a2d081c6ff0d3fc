#include "tests/Banc.h"

#include <QSignalSpy>
#include <QTest>

using namespace Quillet;

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void tarifsDUnJour_data();
    void tarifsDUnJour();
    void grillesEnregistreesAvantLesLivrees();
    void connaitParLesPrix();
    void modificationsAppliquees_data();
    void modificationsAppliquees();
    void ressourceManquante();
    void fraisEnregistres();
    void prixDesBoutons_data();
    void prixDesBoutons();
    void leBoutonLePlusCher();
    void garderPuisReporter();
};

void TestCatalogue::tarifsDUnJour_data()
{
    QTest::addColumn<QString>("jour");
    QTest::addColumn<QString>("enVigueur");
    QTest::addColumn<QString>("aVenir");
    const auto cas = [](const char *jour, const char *enVigueur, const char *aVenir) {
        QTest::addRow("%s", jour) << QString::fromLatin1(jour) << QString::fromLatin1(enVigueur)
                                  << QString::fromLatin1(aVenir);
    };
    cas("2024-06-01", "2025-01-01", "2025-01-01");
    cas("2025-01-01", "2025-01-01", "2026-01-01");
    cas("2025-12-31", "2025-01-01", "2026-01-01");
    cas("2026-01-01", "2026-01-01", "2027-01-01");
    cas("2031-05-05", "2027-01-01", "");
}

void TestCatalogue::tarifsDUnJour()
{
    QFETCH(QString, jour);
    QFETCH(QString, enVigueur);
    QFETCH(QString, aVenir);
    Banc banc;
    banc.tarifs = {desTarifs("2026-01-01", Centimes{549}), desTarifs("2027-01-01", Centimes{579}),
                   desTarifs("2025-01-01", Centimes{525})};
    const auto catalogue = banc.charger();
    QCOMPARE(catalogue->donnees().tarifs(Jour(jour)).validite.texte(), enVigueur);
    const auto prochains = catalogue->donnees().tarifsAVenir(Jour(jour));
    QCOMPARE(prochains ? prochains->validite.texte() : QString(), aVenir);
}

void TestCatalogue::grillesEnregistreesAvantLesLivrees()
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
    banc.ecrireUtilisateur(QStringLiteral("tarifs-colissimo-abime.json"), R"({"validite":"2030-01-01"})");
    banc.ecrireUtilisateur(QStringLiteral("tarifs-colissimo-bis.json"),
                           Json::encoder(desTarifs(debut2026, Centimes{610})));
    const auto relu = banc.charger();
    QCOMPARE(relu->donnees().grillesConnues.size(), 2);
    QCOMPARE(premier(*relu, {2026, 1, 1}), Centimes{610});
    QCOMPARE(premier(*relu, {2028, 1, 1}), Centimes{700});
}

void TestCatalogue::connaitParLesPrix()
{
    const auto catalogue = Banc().charger();
    auto lus = desTarifs("2029-01-01", Centimes{549});
    std::swap(lus.grilles[0], lus.grilles[1]);
    QVERIFY(catalogue->donnees().connait(lus));
    lus.grilles[0].paliers[1].prix += Centimes{1};
    QVERIFY(!catalogue->donnees().connait(lus));
    lus = desTarifs("2026-01-01", Centimes{549});
    lus.grilles.append(lus.grilles[0]);
    QVERIFY(!catalogue->donnees().connait(lus));
}

void TestCatalogue::modificationsAppliquees_data()
{
    QTest::addColumn<QByteArray>("fichier");
    QTest::addColumn<bool>("appliquee");
    QTest::addColumn<PrixParDestination>("ecartes");
    const PrixParDestination livres{{vers("france"), Centimes{2000}}};
    QTest::newRow("prix écartés absents : gardés")
        << QByteArray(R"({"1":{"prix":1700,"disponible":false}, "99":{"prix":1,"disponible":true}})") << true << livres;
    QTest::newRow("prix écartés vides : remplacés")
        << QByteArray(R"({"1":{"prix":1700,"disponible":false,"prixEcartes":{}}})") << true << PrixParDestination{};
    QTest::newRow("fichier abîmé : ignoré") << QByteArray(R"({"1":{"prix":1700)") << false << livres;
    QTest::newRow("une valeur abîmée : tout est ignoré")
        << QByteArray(R"({"1":{"prix":1700,"disponible":false}, "3":{"prix":1.5,"disponible":true}})") << false
        << livres;
}

void TestCatalogue::modificationsAppliquees()
{
    QFETCH(QByteArray, fichier);
    QFETCH(bool, appliquee);
    QFETCH(PrixParDestination, ecartes);
    Banc banc;
    banc.livres[0].prixPaypal = banc.livres[0].prixEcartes = {{vers("france"), Centimes{2000}}};
    banc.ecrireUtilisateur(QStringLiteral("livres-modifies.json"), fichier);
    const auto catalogue = banc.charger();
    const Livre &livre = catalogue->donnees().livres[0];
    QCOMPARE(livre.prix, appliquee ? Centimes{1700} : Centimes{1500});
    QCOMPARE(livre.poids.has_value(), !appliquee);
    QCOMPARE(livre.prixPaypal.has_value(), !appliquee);
    QCOMPARE(livre.disponible, !appliquee);
    QCOMPARE(*livre.prixEcartes, ecartes);
}

void TestCatalogue::ressourceManquante()
{
    const Banc banc;
    banc.deposer();
    QVERIFY(QFile::remove(banc.ressources().chemin(QStringLiteral("livres.json"))));
    banc.ecrireRessource(QStringLiteral("livres.json/obstacle"), {});
    try {
        Catalogue::charge(banc.ressources(), banc.stockage());
        QFAIL("chargement accepté");
    } catch (const RessourceIllisible &illisible) {
        QCOMPARE(illisible.texte(),
                 QStringLiteral("Ressource illisible : livres.json : un dossier occupe la place du fichier"));
    }
}

void TestCatalogue::fraisEnregistres()
{
    const Banc banc;
    FraisPaypal frais = banc.reglages.fraisPaypal;
    frais.taux = Taux{310};
    banc.charger()->enregistrer(frais);
    QCOMPARE(banc.charger()->donnees().reglages.fraisPaypal, frais);
    banc.ecrireUtilisateur(QStringLiteral("frais-paypal.json"), "[]");
    QCOMPARE(banc.charger()->donnees().reglages.fraisPaypal, banc.reglages.fraisPaypal);
}

void TestCatalogue::prixDesBoutons_data()
{
    using Etat = PrixBouton::Etat;
    using Prix = std::optional<Centimes>;
    const Prix aucun;
    QTest::addColumn<std::optional<Grammes>>("poids");
    QTest::addColumn<int>("emballage"); // g; -1: no packaging at all
    QTest::addColumn<QString>("destination");
    QTest::addColumn<Prix>("actuel");
    QTest::addColumn<Prix>("ecarte");
    QTest::addColumn<Prix>("calcule");
    QTest::addColumn<Etat>("etat");
    const auto cas = [&](const char *nom, std::optional<Grammes> poids, int emballage, const char *destination,
                         Prix actuel, Prix ecarte, Prix calcule, Etat etat) {
        QTest::newRow(nom) << poids << emballage << QString::fromLatin1(destination) << actuel << ecarte << calcule
                           << etat;
    };
    const Prix leger(Centimes{2049});
    const Prix lourd(Centimes{2259});
    const Prix autre(Centimes{2000});
    cas("à jour", Grammes{210}, 40, "france", leger, aucun, leger, Etat::aJour);
    cas("à jour, écarté naguère", Grammes{210}, 40, "france", leger, leger, leger, Etat::aJour);
    cas("gardé", Grammes{210}, 40, "ue", autre, leger, leger, Etat::garde);
    cas("gardé sans bouton", Grammes{210}, 40, "ue", aucun, leger, leger, Etat::garde);
    cas("à reporter", Grammes{210}, 40, "suisse", autre, aucun, leger, Etat::aReporter);
    cas("sans bouton", Grammes{210}, 40, "suisse", aucun, aucun, leger, Etat::aReporter);
    cas("un gramme de trop", Grammes{210}, 41, "france", leger, aucun, lourd, Etat::aReporter);
    cas("un autre prix était gardé", Grammes{210}, 41, "ue", autre, leger, lourd, Etat::aReporter);
    cas("aucun emballage", Grammes{250}, -1, "france", leger, aucun, leger, Etat::aJour);
    cas("trop lourd", Grammes{1961}, 40, "france", leger, aucun, aucun, Etat::sansPrix);
    cas("pas de grille", Grammes{210}, 40, "lune", autre, aucun, aucun, Etat::sansPrix);
    cas("jamais pesé", std::nullopt, 40, "france", autre, aucun, aucun, Etat::sansPrix);
}

void TestCatalogue::prixDesBoutons()
{
    QFETCH(std::optional<Grammes>, poids);
    QFETCH(int, emballage);
    QFETCH(QString, destination);
    QFETCH(std::optional<Centimes>, actuel);
    QFETCH(std::optional<Centimes>, ecarte);
    Banc banc;
    banc.livres[0].poids = poids;
    if (actuel)
        banc.livres[0].prixPaypal = {{CodeDestination(destination), *actuel}};
    if (ecarte)
        banc.livres[0].prixEcartes = {{CodeDestination(destination), *ecarte}};
    banc.reglages.emballages.clear();
    if (emballage >= 0)
        banc.reglages.emballages = {{QStringLiteral("Enveloppe"), Grammes{emballage}}};
    const auto catalogue = banc.charger();
    const auto boutons = catalogue->donnees().boutons(catalogue->donnees().livres[0], banc.tarifs[0]);
    const auto bouton =
        std::ranges::find(boutons, destination, [](const PrixBouton &du) { return du.destination.code.texte(); });
    QTEST(bouton->calcule, "calcule");
    QTEST(bouton->etat(), "etat");
    QCOMPARE(bouton->actuel, actuel);
    QCOMPARE(bouton->envoi.has_value() && bouton->palier.has_value(), bouton->calcule.has_value());
}

void TestCatalogue::garderPuisReporter()
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

// What a button may be reported at can be read back: one unreadable figure would lose every edit of every book.
void TestCatalogue::leBoutonLePlusCher()
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

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
