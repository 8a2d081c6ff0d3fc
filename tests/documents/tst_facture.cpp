#include "documents/ArticleDouane.h"
#include "documents/Facture.h"
#include "tests/Banc.h"

#include <QTest>

using namespace Quillet;

class TestFacture : public QObject
{
    Q_OBJECT

private slots:
    void factureDeLaCommande();
    void pasDeFacture();
    void nomDeFichier_data();
    void nomDeFichier();
};

void TestFacture::factureDeLaCommande()
{
    const Banc banc;
    BonDeCommande bon;
    bon.ajuster(banc.livres[0], 2);
    bon.poidsPese = Grammes{450};
    bon.ajuster(banc.livres[1], 1);
    bon.codeDestination = vers("suisse");
    const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
    const auto facture = Facture::de(calcul, banc.donnees().reglages, QStringLiteral("2026-004"), jourDuBanc,
                                     QStringLiteral("Ada Exemple\nExempleville"));
    QVERIFY(facture);
    QCOMPARE(*facture, (Facture{.numero = QStringLiteral("2026-004"),
                                .date = jourDuBanc,
                                .vendeur = *banc.reglages.identite(Vendeur::davrel),
                                .acheteur = QStringLiteral("Ada Exemple\nExempleville"),
                                .lignes = {{1, QStringLiteral("Livre 1"), banc.livres[0].isbn, 2, Centimes{1500}},
                                           {2, QStringLiteral("Livre 2"), banc.livres[1].isbn, 1, Centimes{2200}}},
                                .libelleEnvoi = QStringLiteral("Envoi Colissimo · Colissimo shipping – Switzerland"),
                                .envoi = Centimes{759},
                                .codeSH = QStringLiteral("490199")}));
    QCOMPARE(facture->sousTotal(), Centimes{5200});
    QCOMPARE(facture->total(), Centimes{5959});
    QCOMPARE(articlesDouane(calcul, QStringLiteral("490199")).value(0),
             (ArticleDouane{1, QStringLiteral("Printed book – Livre 1"), 2, Grammes{200}, Centimes{1500},
                            QStringLiteral("490199"), QStringLiteral("France")}));
}

void TestFacture::pasDeFacture()
{
    Banc banc;
    const auto existe = [&](const BonDeCommande &bon) {
        return Facture::de(Calcul::de(banc.donnees(), bon, jourDuBanc), banc.donnees().reglages, {}, jourDuBanc, {})
            .has_value();
    };
    BonDeCommande bon;
    QVERIFY(!existe(bon)); // no book
    bon.ajuster(banc.livres[0], 1);
    QVERIFY(existe(bon));
    bon.poidsPese = Grammes{2001}; // no tier
    QVERIFY(!existe(bon));
    BonDeCommande sansIdentite{.vendeur = Vendeur::mireva};
    sansIdentite.ajuster(banc.livres[2], 1);
    QVERIFY(!existe(sansIdentite));
}

void TestFacture::nomDeFichier_data()
{
    QTest::addColumn<QString>("vendeur");
    QTest::addColumn<QString>("nom");
    const auto cas = [](const char *ligne, const QString &vendeur, const QString &nom) {
        QTest::newRow(ligne) << vendeur << QStringLiteral("Facture 2026-001 – ") + nom + QStringLiteral(".pdf");
    };
    cas("ordinaire", QStringLiteral("Éditions Davrel"), QStringLiteral("Éditions Davrel"));
    cas("chemin", QStringLiteral("../a\\b/c"), QStringLiteral("..-a-b-c"));
    cas("interdits ailleurs", QStringLiteral("a:b*c?d\"e<f>g|h"), QStringLiteral("a-b-c-d-e-f-g-h"));
    cas("commande", QStringLiteral("a\nb"), QStringLiteral("a-b"));
    cas("long", QString(300, QChar(0x00E9)), QString(109, QChar(0x00E9)));
    cas("long, en paires", QString::fromUtf8("📚").repeated(100), QString::fromUtf8("📚").repeated(54));
}

void TestFacture::nomDeFichier()
{
    QFETCH(QString, vendeur);
    QFETCH(QString, nom);
    const Facture facture{.numero = QStringLiteral("2026-001"), .vendeur = {.nom = vendeur}};
    QCOMPARE(facture.nomDeFichier(), nom);
}

QTEST_GUILESS_MAIN(TestFacture)
#include "tst_facture.moc"
