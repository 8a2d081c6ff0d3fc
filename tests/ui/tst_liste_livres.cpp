#include "tests/Banc.h"
#include "textes/FiltreLivres.h"
#include "textes/TextesRetour.h"
#include "ui/livres/ModeleLivres.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Quillet;

// What the books' screen lists and says, without a window.
class TestListeLivres : public QObject
{
    Q_OBJECT

private slots:
    void unVendeurApresLAutre();
    void enMots();
    void recherche_data();
    void recherche();
    void etats_data();
    void etats();
    void pertes();
};

void TestListeLivres::unVendeurApresLAutre()
{
    const Banc banc; // the third of the four books is the other seller's
    const auto catalogue = banc.charger();
    ModeleLivres modele(*catalogue);
    const QAbstractItemModelTester verification(&modele, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QList<qint64> ids;
    QList<int> ouvrent;
    QList<int> ferment;
    for (int rang = 0; rang < modele.rowCount(); ++rang) {
        ids.append(modele.livre(rang).id);
        if (modele.ouvreUnGroupe(rang))
            ouvrent.append(rang);
        if (modele.fermeUnGroupe(rang))
            ferment.append(rang);
    }
    QCOMPARE(ids, (QList<qint64>{1, 2, 4, 3}));
    QCOMPARE(ouvrent, (QList{0, 3}));
    QCOMPARE(ferment, (QList{2, 3}));
    QCOMPARE(modele.nombre(Vendeur::davrel), 3);
}

void TestListeLivres::enMots()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    ModeleLivres modele(*catalogue);
    modele.setTarifs(banc.tarifs[0]);
    const QString debut = QStringLiteral("Livre %1, Une autrice, 14 × 21 cm · 200 pages, vendu par ");
    const QStringList attendus{debut.arg(1) + QStringLiteral("Davrel, 200 g, 15,00 €, 3 prix à reporter"),
                               debut.arg(2) + QStringLiteral("Davrel, Poids à peser, 22,00 €"),
                               debut.arg(4) + QStringLiteral("Davrel, 150 g, 9,00 €, Épuisé, 3 prix à reporter"),
                               debut.arg(3) + QStringLiteral("Mireva, 300 g, 18,00 €, 3 prix à reporter")};
    for (int rang = 0; rang < attendus.size(); ++rang)
        QCOMPARE(lisible(modele.index(rang).data(Qt::AccessibleTextRole).toString()), attendus[rang]);
}

void TestListeLivres::recherche_data()
{
    QTest::addColumn<QString>("recherche");
    QTest::addColumn<bool>("retenu");
    QTest::newRow("rien") << " " << true;
    QTest::newRow("sans accents ni ligature") << "coeur l'ete" << true;
    QTest::newRow("mots en désordre") << "ÉTÉ cœur" << true;
    QTest::newRow("début d’auteur") << "autr" << true;
    QTest::newRow("ISBN sans tirets") << "9780000000" << true;
    QTest::newRow("ISBN avec tirets") << "978-0-00" << true;
    QTest::newRow("un mot de trop") << "coeur hiver" << false;
}

void TestListeLivres::recherche()
{
    QFETCH(QString, recherche);
    Livre livre = unLivre(1, Vendeur::davrel, Centimes{100}, Grammes{10});
    livre.titre = QStringLiteral("Au cœur de l’été");
    const FiltreLivres filtre{.recherche = FiltreLivres::mots(recherche), .vendeur = {}, .etat = {}};
    QTEST(filtre.retient({livre, FiltreLivres::texteCherche(livre), 0}), "retenu");
}

void TestListeLivres::etats_data()
{
    using Etat = FiltreLivres::Etat;
    QTest::addColumn<Etat>("etat");
    QTest::addColumn<std::optional<Vendeur>>("vendeur");
    QTest::addColumn<QString>("retenus");
    const std::optional<Vendeur> lesDeux;
    QTest::newRow("tous") << Etat::tous << lesDeux << "1 2 4 3";
    QTest::newRow("à reporter") << Etat::aReporter << lesDeux << "1 4 3";
    QTest::newRow("à peser") << Etat::aPeser << lesDeux << "2";
    QTest::newRow("épuisés") << Etat::epuises << lesDeux << "4";
    QTest::newRow("de Mireva") << Etat::tous << std::optional(Vendeur::mireva) << "3";
    QTest::newRow("de Mireva, à peser") << Etat::aPeser << std::optional(Vendeur::mireva) << "";
}

void TestListeLivres::etats()
{
    QFETCH(FiltreLivres::Etat, etat);
    QFETCH(std::optional<Vendeur>, vendeur);
    const Banc banc;
    const auto catalogue = banc.charger();
    ModeleLivres modele(*catalogue);
    modele.setTarifs(banc.tarifs[0]);
    modele.setFiltre({.recherche = {}, .vendeur = vendeur, .etat = etat});
    QStringList retenus;
    for (int rang = 0; rang < modele.rowCount(); ++rang)
        retenus.append(QString::number(modele.livre(rang).id));
    QTEST(retenus.join(u' '), "retenus");
    QCOMPARE(modele.aReporter(), 9); // of all the books, whatever is shown
}

void TestListeLivres::pertes()
{
    QList<Livre> livres;
    for (int id = 1; id <= 11; ++id)
        livres.append(unLivre(id, Vendeur::davrel, Centimes{1000}, Grammes{100}));
    QList<Livre> actuels = livres;
    QVERIFY(TextesRetour::pertes(actuels, livres).isEmpty());
    actuels[0].poids.reset();
    actuels[0].disponible = false;
    actuels[0].prixPaypal = {{vers("france"), Centimes{1}}, {vers("ue"), Centimes{2}}};
    actuels[0].prixEcartes = {{vers("ue"), Centimes{2}}};
    for (Livre &livre : actuels)
        livre.prix = Centimes{1250};
    const QStringList pertes = TextesRetour::pertes(actuels, livres);
    QCOMPARE(lisible(pertes.first()),
             QStringLiteral("Livre 1 : 12,50 €, Poids à peser, Épuisé, 2 prix reportés, 1 prix gardé"));
    QCOMPARE(pertes.size(), 9);
    QCOMPARE(pertes.last(), QStringLiteral("et 3 autres livres"));
}

QTEST_GUILESS_MAIN(TestListeLivres)
#include "tst_liste_livres.moc"
