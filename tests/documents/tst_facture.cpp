#include "documents/ArticleDouane.h"
#include "documents/Facture.h"
#include "documents/NumerotationFactures.h"
#include "tests/Banc.h"

#include <QTest>

class TestFacture : public QObject
{
    Q_OBJECT

private slots:
    void prochain_data();
    void prochain();
    void retenir_data();
    void retenir();
    void unVendeurAPart();
    void preferencesNonEcrites_data();
    void preferencesNonEcrites();
    void factureDeLaCommande();
    void pasDeFacture();
    void nomDeFichier_data();
    void nomDeFichier();
    void articles();
};

namespace {

const QString cleDavrel = QStringLiteral("derniereFacture.davrel");

} // namespace

void TestFacture::prochain_data()
{
    QTest::addColumn<QString>("retenu"); // empty: none
    QTest::addColumn<QString>("propose");
    const auto cas = [](const char *nom, const char *retenu, const char *propose) {
        QTest::newRow(nom) << QString::fromUtf8(retenu) << QString::fromUtf8(propose);
    };
    cas("aucun", "", "2026-001");
    cas("suivant", "2026-007", "2026-008");
    cas("au-delà de 999", "2026-1233", "2026-1234");
    cas("autre année", "2025-041", "2026-001");
    cas("année à venir", "2027-002", "2026-001");
    cas("tirets en trop", "-2026--007-", "2026-008");
    cas("signe", "+2026-+7", "2026-008");
    cas("une partie", "2026-", "2026-001");
    cas("trois parties", "2026-007-1", "2026-001");
    cas("lettres", "abc", "2026-001");
    cas("espace", "2026- 7", "2026-001");
    cas("chiffres d’ailleurs", "2026-٧", "2026-001");
    cas("signe seul", "2026-+", "2026-001");
    cas("trop grand pour être lu", "2026-99999999999999999999", "2026-001");
    cas("le dernier qui se lise", "2026-9223372036854775807", "2026-001");
}

void TestFacture::prochain()
{
    QFETCH(QString, retenu);
    QFETCH(QString, propose);
    const Banc banc;
    if (!retenu.isEmpty())
        banc.preferences().ecrire(cleDavrel, retenu);
    const NumerotationFactures numerotation{banc.preferences()};
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), propose);
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), propose); // asking consumes nothing
}

void TestFacture::retenir_data()
{
    QTest::addColumn<QString>("avant"); // empty: none
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("apres");
    const auto cas = [](const char *nom, const char *avant, const char *numero, const char *apres) {
        QTest::newRow(nom) << QString::fromUtf8(avant) << QString::fromUtf8(numero) << QString::fromUtf8(apres);
    };
    cas("premier", "", "2026-001", "2026-001");
    cas("suivant", "2025-010", "2025-011", "2025-011");
    cas("le même", "2025-010", "2025-010", "2025-010");
    cas("réimprimé", "2025-010", "2025-009", "2025-010");
    cas("année passée", "2025-010", "2024-099", "2025-010");
    cas("nouvelle année", "2024-041", "2025-001", "2025-001");
    cas("gardé comme il fut tapé", "2026-007", "2026-12", "2026-12");
    cas("rang plus long", "2026-999", "2026-1000", "2026-1000");
    cas("illisible remplacé", "abc", "2026-003", "2026-003");
    cas("ce qui n’est pas un numéro", "2026-003", "F-2026-004", "2026-003");
}

void TestFacture::retenir()
{
    QFETCH(QString, avant);
    QFETCH(QString, numero);
    QFETCH(QString, apres);
    const Banc banc;
    if (!avant.isEmpty())
        banc.preferences().ecrire(cleDavrel, avant);
    NumerotationFactures{banc.preferences()}.retenir(numero, Vendeur::davrel);
    QCOMPARE(banc.preferences().texte(cleDavrel), apres);
}

void TestFacture::unVendeurAPart()
{
    const Banc banc;
    const NumerotationFactures numerotation{banc.preferences()};
    numerotation.retenir(QStringLiteral("2026-005"), Vendeur::davrel);
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), QStringLiteral("2026-006"));
    QCOMPARE(numerotation.prochain(Vendeur::mireva, jourDuBanc), QStringLiteral("2026-001"));
}

void TestFacture::preferencesNonEcrites_data()
{
    QTest::addColumn<bool>("disquePlein");
    QTest::newRow("disque plein") << true;
    QTest::newRow("un fichier à la place du dossier") << false;
}

void TestFacture::preferencesNonEcrites()
{
    QFETCH(bool, disquePlein);
    const Banc banc;
    banc.ecrireUtilisateur(QStringLiteral("obstacle"), "pas un dossier");
    const Preferences preferences =
        disquePlein ? banc.preferences() : Preferences(banc.cheminUtilisateur(QStringLiteral("obstacle/Quillet.ini")));
    const NumerotationFactures numerotation{preferences};
    if (disquePlein)
        numerotation.retenir(QStringLiteral("2026-001"), Vendeur::davrel);
    const QString propose = numerotation.prochain(Vendeur::davrel, jourDuBanc);
    {
        std::optional<DisquePlein> plein;
        if (disquePlein)
            plein.emplace();
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, numerotation.retenir(propose, Vendeur::davrel));
    }
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), propose); // the series has not moved
    if (disquePlein) {
        numerotation.retenir(propose, Vendeur::davrel); // and goes on once there is room
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), QStringLiteral("2026-003"));
    }
}

void TestFacture::factureDeLaCommande()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    Commande commande;
    commande.ajuster(banc.livres[0], 2);
    commande.setPoidsPese(Grammes{450});
    commande.ajuster(banc.livres[1], 1);
    commande.setCodeDestination(QStringLiteral("suisse"));
    const Calcul calcul(*catalogue, commande, jourDuBanc);
    const auto facture = ::facture(calcul, catalogue->reglages(), QStringLiteral("2026-004"), jourDuBanc,
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
}

void TestFacture::pasDeFacture()
{
    Banc banc;
    const auto catalogue = banc.charger();
    const auto existe = [&](const Commande &commande) {
        return ::facture(Calcul(*catalogue, commande, jourDuBanc), catalogue->reglages(), {}, jourDuBanc, {})
            .has_value();
    };
    Commande commande;
    QVERIFY(!existe(commande)); // no book
    commande.ajuster(banc.livres[0], 1);
    QVERIFY(existe(commande));
    commande.setPoidsPese(Grammes{2001}); // no tier
    QVERIFY(!existe(commande));
    Commande sansIdentite;
    sansIdentite.setVendeur(Vendeur::mireva);
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

void TestFacture::articles()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    Commande commande;
    QVERIFY(articlesDouane(Calcul(*catalogue, commande, jourDuBanc), QStringLiteral("490199")).isEmpty());
    commande.ajuster(banc.livres[0], 2);
    commande.ajuster(banc.livres[1], 1);
    const auto articles = articlesDouane(Calcul(*catalogue, commande, jourDuBanc), QStringLiteral("490199"));
    const QString france = QStringLiteral("France");
    const QString code = QStringLiteral("490199");
    QCOMPARE(articles, (QList<ArticleDouane>{
                           {1, QStringLiteral("Printed book – Livre 1"), 2, Grammes{200}, Centimes{1500}, code, france},
                           {2, QStringLiteral("Printed book – Livre 2"), 1, Grammes{}, Centimes{2200}, code, france}}));
}

QTEST_GUILESS_MAIN(TestFacture)
#include "tst_facture.moc"
