#include "model/Calcul.h"
#include "tests/Banc.h"

#include <QTest>

using namespace Quillet;

class TestCalcul : public QObject
{
    Q_OBJECT

private slots:
    void paliers_data();
    void paliers();
    void fraisPaypal_data();
    void fraisPaypal();
    void pays_data();
    void pays();
    void commandeEntiere();
    void sansPrix_data();
    void sansPrix();
    void poidsDuColis_data();
    void poidsDuColis();
    void douane_data();
    void douane();
    void peseeSeule();
    void tarifsDuJour();
};

void TestCalcul::paliers_data()
{
    QTest::addColumn<qint64>("poids");
    QTest::addColumn<qint64>("jusqua"); // 0: none
    QTest::newRow("nul") << qint64{0} << qint64{250};
    QTest::newRow("sur la borne") << qint64{250} << qint64{250};
    QTest::newRow("un gramme de plus") << qint64{251} << qint64{500};
    QTest::newRow("dernière borne") << qint64{2000} << qint64{2000};
    QTest::newRow("au-delà") << qint64{2001} << qint64{0};
}

void TestCalcul::paliers()
{
    QFETCH(qint64, poids);
    QFETCH(qint64, jusqua);
    const auto grilles = desTarifs("2026-01-01", Centimes{549}).grilles;
    QCOMPARE(grilles[0].palier(Grammes{poids}).value_or(Palier{}).jusqua, Grammes{jusqua});
    QVERIFY(!GrilleColissimo{}.palier(Grammes{poids}));
}

void TestCalcul::fraisPaypal_data()
{
    QTest::addColumn<qint64>("montant");
    QTest::addColumn<qint64>("taux");
    QTest::addColumn<qint64>("frais"); // with 35 cents fixed
    QTest::newRow("demi-centime vers le haut") << qint64{5000} << qint64{1} << qint64{36};
    QTest::newRow("moins d’un demi-centime") << qint64{4999} << qint64{1} << qint64{35};
}

void TestCalcul::fraisPaypal()
{
    QFETCH(qint64, montant);
    QFETCH(qint64, taux);
    QFETCH(qint64, frais);
    FraisPaypal bareme{.taux = Taux{taux}, .fixe = Centimes{35}};
    QCOMPARE(bareme.frais(Centimes{montant}, RegionPaypal::autres), Centimes{frais});
    bareme.taux = Taux{0};
    bareme.supplements = {{RegionPaypal::royaumeUni, Taux{taux}}};
    QCOMPARE(bareme.frais(Centimes{montant}, RegionPaypal::royaumeUni), Centimes{frais});
    QCOMPARE(bareme.frais(Centimes{montant}, RegionPaypal::eee), Centimes{35});
}

void TestCalcul::pays_data()
{
    QTest::addColumn<QString>("nomCourt");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("pays"); // empty: none
    const auto cas = [](const char *court, const char *nom, const char *pays) {
        QTest::addRow("%s", nom) << QString::fromUtf8(court) << QString::fromUtf8(nom) << QString::fromUtf8(pays);
    };
    cas("OM1", "OM1 : Guadeloupe, Guyane", "Guadeloupe, Guyane");
    cas("OM1", "OM1", "");
    cas("OM1", "OM1 : OM1", "");
    cas("OM1", "Guadeloupe", "Guadeloupe");
}

void TestCalcul::pays()
{
    QFETCH(QString, nomCourt);
    QFETCH(QString, nom);
    QFETCH(QString, pays);
    QCOMPARE((GrilleColissimo{.nomCourt = nomCourt, .nom = nom}.pays().value_or(QString())), pays);
}

void TestCalcul::commandeEntiere()
{
    const Banc banc;
    BonDeCommande bon;
    bon.ajuster(banc.livres[0], 2);
    bon.ajuster(banc.livres[2], 5); // the other seller's
    bon.ajuster(banc.livres[3], 1); // sold out
    bon.codeDestination = vers("suisse");
    const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
    QCOMPARE(calcul.lignes, (QList<Calcul::Ligne>{{banc.livres[0], 2}}));
    QCOMPARE(calcul.sousTotal, Centimes{3000});
    QCOMPARE(calcul.poidsLivres, Grammes{400});
    QCOMPARE(calcul.poidsCalcule, Grammes{440});
    QCOMPARE(calcul.poidsRetenu, Grammes{440});
    QCOMPARE(calcul.regionPaypal, RegionPaypal::autres);
    QCOMPARE(calcul.envoi, Centimes{759});
    QCOMPARE(calcul.total, Centimes{3759});
    QCOMPARE(calcul.fraisPaypal, Centimes{(3759 * 489 + 5000) / 10000 + 35});
    QCOMPARE(calcul.reste, calcul.sousTotal - *calcul.fraisPaypal);
    QCOMPARE(calcul.vendeurs(), QSet{Vendeur::davrel});
    QCOMPARE(calcul.nombreDeLivres(), 2);
}

void TestCalcul::sansPrix_data()
{
    QTest::addColumn<qint64>("livre");
    QTest::addColumn<QString>("destination");
    QTest::addColumn<qint64>("pesee"); // -1: none at all
    QTest::addColumn<bool>("chiffree");
    const auto cas = [](const char *nom, qint64 livre, const char *destination, qint64 pesee, bool chiffree) {
        QTest::newRow(nom) << livre << QString::fromLatin1(destination) << pesee << chiffree;
    };
    cas("pesé par le catalogue", 1, "france", -1, true);
    cas("livre jamais pesé", 2, "france", -1, false);
    cas("livre jamais pesé, pesée nulle", 2, "france", 0, false);
    cas("livre jamais pesé, colis pesé", 2, "france", 1, true);
    cas("livre de l’autre vendeur", 3, "france", -1, false);
    cas("destination inconnue", 1, "mars", -1, false);
    cas("destination sans grille", 1, "lune", -1, false);
}

void TestCalcul::sansPrix()
{
    QFETCH(qint64, livre);
    QFETCH(QString, destination);
    QFETCH(qint64, pesee);
    QFETCH(bool, chiffree);
    const Banc banc;
    BonDeCommande bon;
    bon.ajuster(banc.livres[livre - 1], 1);
    bon.codeDestination = CodeDestination(destination);
    if (pesee != -1)
        bon.poidsPese = Grammes{pesee};
    const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
    QCOMPARE(calcul.palier.has_value(), chiffree);
    QCOMPARE(calcul.reste.has_value(), chiffree);
    QCOMPARE(calcul.poidsPese.has_value(), pesee > 0);
    QCOMPARE(calcul.regionPaypal.has_value(), banc.donnees().destination(CodeDestination(destination)).has_value());
}

void TestCalcul::poidsDuColis_data()
{
    QTest::addColumn<QString>("emballage");
    QTest::addColumn<qint64>("libre");
    QTest::addColumn<qint64>("attendu");
    QTest::newRow("des réglages") << QStringLiteral("Carton") << qint64{7} << qint64{180};
    QTest::newRow("libre, avant l’homonyme") << QStringLiteral("Autre poids") << qint64{7} << qint64{7};
    QTest::newRow("libre négatif") << QStringLiteral("Autre poids") << qint64{-7} << qint64{0};
    QTest::newRow("négatif dans les réglages") << QStringLiteral("Ballon") << qint64{7} << qint64{0};
    QTest::newRow("inconnu") << QStringLiteral("carton") << qint64{7} << qint64{0};
}

void TestCalcul::poidsDuColis()
{
    QFETCH(QString, emballage);
    QFETCH(qint64, libre);
    QFETCH(qint64, attendu);
    Banc banc;
    banc.reglages.emballages.append({QStringLiteral("Autre poids"), Grammes{999}});
    banc.reglages.emballages.append({QStringLiteral("Ballon"), Grammes{-40}});
    BonDeCommande bon;
    bon.emballage = emballage;
    bon.poidsEmballageLibre = Grammes{libre};
    QCOMPARE(Calcul::de(banc.donnees(), bon, jourDuBanc).poidsEmballage, Grammes{attendu});
}

void TestCalcul::douane_data()
{
    QTest::addColumn<QString>("destination");
    QTest::addColumn<bool>("horsUE");
    QTest::addColumn<bool>("requise");
    QTest::newRow("France") << QStringLiteral("france") << true << false;
    QTest::newRow("UE") << QStringLiteral("ue") << false << false;
    QTest::newRow("UE, exception") << QStringLiteral("ue") << true << true;
    QTest::newRow("Suisse") << QStringLiteral("suisse") << false << true;
    QTest::newRow("inconnue") << QStringLiteral("mars") << true << false;
}

void TestCalcul::douane()
{
    QFETCH(QString, destination);
    QFETCH(bool, horsUE);
    QFETCH(bool, requise);
    const Banc banc;
    BonDeCommande bon;
    bon.codeDestination = CodeDestination(destination);
    bon.horsUE = horsUE;
    QCOMPARE(Calcul::de(banc.donnees(), bon, jourDuBanc).douaneRequise, requise);
}

// A weighed parcel counts alone, even when it is lighter than what was computed.
void TestCalcul::peseeSeule()
{
    Banc banc;
    auto homonyme = banc.destinations[2];
    homonyme.code = vers("france");
    banc.destinations.append(homonyme); // the first of a code wins
    BonDeCommande bon;
    bon.ajuster(banc.livres[0], 5);
    bon.poidsPese = Grammes{1};
    const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
    QCOMPARE(calcul.poidsCalcule, Grammes{1040});
    QCOMPARE(calcul.poidsRetenu, Grammes{1});
    QCOMPARE(calcul.envoi, Centimes{549});
    QCOMPARE(calcul.regionPaypal, RegionPaypal::eee);
}

void TestCalcul::tarifsDuJour()
{
    Banc banc;
    banc.tarifs.append(desTarifs("2026-07-01", Centimes{601}));
    BonDeCommande bon;
    bon.ajuster(banc.livres[0], 1);
    QCOMPARE(Calcul::de(banc.donnees(), bon, QDate(2026, 6, 30)).envoi, Centimes{549});
    QCOMPARE(Calcul::de(banc.donnees(), bon, QDate(2026, 7, 1)).envoi, Centimes{601});
}

QTEST_GUILESS_MAIN(TestCalcul)
#include "tst_calcul.moc"
