#include "documents/EmissionFacture.h"
#include "tests/Banc.h"
#include "tests/DisquePlein.h"

#include <QTest>

using namespace Quillet;

class TestNumerotation : public QObject
{
    Q_OBJECT

private slots:
    void prochain_data();
    void prochain();
    void retenir_data();
    void retenir();
    void unVendeurAPart();
    void disquePlein();
    void numeroDuChamp();
    void compteUneFoisPartie();
};

namespace {

const QString cleDavrel = QStringLiteral("derniereFacture.davrel");

} // namespace

void TestNumerotation::prochain_data()
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
    cas("lettres", "abc", "2026-001");
    cas("espace", "2026- 7", "2026-001");
    cas("chiffres d’ailleurs", "2026-٧", "2026-001");
    cas("trop grand pour être lu", "2026-99999999999999999999", "2026-001");
    cas("le dernier qui se lise", "2026-9223372036854775807", "2026-001");
}

void TestNumerotation::prochain()
{
    QFETCH(QString, retenu);
    QFETCH(QString, propose);
    const Banc banc;
    if (!retenu.isEmpty())
        banc.preferences().ecrire(cleDavrel, retenu);
    const NumerotationFactures numerotation{banc.preferences()};
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), propose);
}

void TestNumerotation::retenir_data()
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

void TestNumerotation::retenir()
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

void TestNumerotation::unVendeurAPart()
{
    const Banc banc;
    NumerotationFactures numerotation{banc.preferences()};
    numerotation.retenir(QStringLiteral("2026-005"), Vendeur::davrel);
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), QStringLiteral("2026-006"));
    QCOMPARE(numerotation.prochain(Vendeur::mireva, jourDuBanc), QStringLiteral("2026-001"));
}

// The disk takes a part of the file.
void TestNumerotation::disquePlein()
{
    const Banc banc;
    Preferences preferences = banc.preferences();
    preferences.ecrire(QStringLiteral("dossier"), QString(400, u'x'));
    NumerotationFactures numerotation{preferences};
    numerotation.retenir(QStringLiteral("2026-001"), Vendeur::davrel);
    {
        const DisquePlein plein(200);
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, numerotation.retenir(QStringLiteral("2026-002"), Vendeur::davrel));
    }
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), QStringLiteral("2026-002")); // has not moved
    QCOMPARE(preferences.texte(QStringLiteral("dossier")).size(), 400);
    numerotation.retenir(QStringLiteral("2026-002"), Vendeur::davrel); // and goes on once there is room
    QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), QStringLiteral("2026-003"));
}

// What somebody typed stays; what was proposed follows the day and the seller's series.
void TestNumerotation::numeroDuChamp()
{
    const Banc banc;
    EmissionFacture emission(banc.preferences());
    const auto numero = [&](const char *saisi, QDate jour) {
        return emission.numeroPour(QString::fromLatin1(saisi), Vendeur::davrel, jour);
    };
    QCOMPARE(numero("", jourDuBanc), QStringLiteral("2026-001"));
    NumerotationFactures{banc.preferences()}.retenir(QStringLiteral("2026-004"), Vendeur::davrel);
    QCOMPARE(numero("2026-001", jourDuBanc), QStringLiteral("2026-001")); // of the day's series
    QCOMPARE(numero("2026-001", QDate(2027, 1, 1)), QStringLiteral("2027-001"));
    QCOMPARE(numero("F-12", QDate(2028, 1, 1)), QStringLiteral("F-12"));
    QVERIFY(emission.sansProposition().isEmpty());
}

void TestNumerotation::compteUneFoisPartie()
{
    const Banc banc;
    EmissionFacture emission(banc.preferences());
    const Facture facture{.numero = QStringLiteral("2026-007")};
    const auto retenu = [&] { return banc.preferences().texte(cleDavrel); };
    const auto emettre = [&](const std::function<bool(const Facture &)> &sortir) {
        return emission.emettre(facture, Vendeur::davrel, sortir);
    };
    QVERIFY(!emettre([](const Facture &) { return false; })); // given up
    QVERIFY_THROWS_EXCEPTION(Echec, emettre([](const Facture &) -> bool { throw Echec(QStringLiteral("refusée")); }));
    QVERIFY(retenu().isEmpty());
    QVERIFY(emettre([&](const Facture &partie) { return partie == facture && retenu().isEmpty(); }));
    QCOMPARE(retenu(), facture.numero);
}

QTEST_GUILESS_MAIN(TestNumerotation)
#include "tst_numerotation.moc"
