#include "model/HistoriqueLivres.h"
#include "model/Saisie.h"
#include "tests/Banc.h"
#include "tests/DisquePlein.h"

#include <QTest>

// What sellers type of their books, and the way back from it.
class TestEditionLivres : public QObject
{
    Q_OBJECT

private slots:
    void prixSaisi_data();
    void prixSaisi();
    void poidsSaisi_data();
    void poidsSaisi();
    void annulerEtRetablir();
    void echecSansTrace();
};

namespace {

template <typename T>
QString raison(const Saisie::Lecture<T> &lecture)
{
    const auto *refus = std::get_if<Saisie::Refus>(&lecture);
    return refus ? lisible(refus->raison) : QString();
}

} // namespace

void TestEditionLivres::prixSaisi_data()
{
    QTest::addColumn<QString>("saisie");
    QTest::addColumn<qint64>("centimes");
    QTest::addColumn<QString>("refus");
    const auto accepte = [](const char *saisie, qint64 centimes) {
        QTest::newRow(saisie) << QString::fromUtf8(saisie) << centimes << QString();
    };
    const auto refuse = [](const char *saisie, const char *refus) {
        QTest::newRow(saisie) << QString::fromUtf8(saisie) << qint64{0} << QString::fromUtf8(refus);
    };
    accepte("18", 1800);
    accepte("18,5", 1850);
    accepte("18.05", 1805);
    accepte(",5", 50);
    accepte("7,", 700);
    accepte("0", 0);
    accepte(" 1\u202f234,50\u00a0€", 123450);
    accepte("99 999,99", 9'999'999);
    accepte("00000000000000000000012", 1200);
    refuse("", "Il faut un prix.");
    refuse("€", "Il faut un prix.");
    refuse("-1", "Un prix ne peut pas être négatif.");
    refuse("\u22121", "Un prix ne peut pas être négatif.");
    refuse("18,555", "Deux décimales au plus, comme 18,50.");
    refuse("100000", "Un prix va jusqu’à 99 999,99 €.");
    refuse("99999999999999999999999", "Un prix va jusqu’à 99 999,99 €.");
    for (const char *lettres : {"dix", "1,2,3", "1.234,5", ",", "1e3", "0x10", "\u0661\u0662", "+5", "5€€"})
        refuse(lettres, "Un prix s’écrit en chiffres, comme 18,50.");
}

void TestEditionLivres::prixSaisi()
{
    QFETCH(QString, saisie);
    QFETCH(qint64, centimes);
    QFETCH(QString, refus);
    const auto lu = Saisie::prix(saisie);
    QCOMPARE(raison(lu), refus);
    if (refus.isEmpty()) {
        QCOMPARE(std::get<Centimes>(lu), Centimes{centimes});
        QCOMPARE(std::get<Centimes>(Saisie::prix(Saisie::ecrit(Centimes{centimes}))), Centimes{centimes});
    }
}

void TestEditionLivres::poidsSaisi_data()
{
    QTest::addColumn<QString>("saisie");
    QTest::addColumn<std::optional<Grammes>>("poids");
    QTest::addColumn<QString>("refus");
    const QString entiers = QStringLiteral("Un poids s’écrit en grammes entiers, comme 355.");
    const std::optional<Grammes> aucun;
    QTest::newRow("grammes") << "355" << std::optional(Grammes{355}) << QString();
    QTest::newRow("avec l’unité") << "1 250 g" << std::optional(Grammes{1250}) << QString();
    QTest::newRow("à peser") << "  " << aucun << QString();
    QTest::newRow("kilos") << "1kg" << aucun << entiers;
    QTest::newRow("décimales") << "1,5" << aucun << entiers;
    QTest::newRow("négatif") << "-3" << aucun << "Un poids ne peut pas être négatif.";
    QTest::newRow("trop lourd") << "1000000" << aucun << "Un poids va jusqu’à 999 999 g.";
}

void TestEditionLivres::poidsSaisi()
{
    QFETCH(QString, saisie);
    QFETCH(std::optional<Grammes>, poids);
    QFETCH(QString, refus);
    const auto lu = Saisie::poids(saisie);
    QCOMPARE(raison(lu), refus);
    if (refus.isEmpty())
        QCOMPARE(std::get<std::optional<Grammes>>(lu), poids);
}

// Each step back and forth stands in memory and in the file; the return to shipped values too.
void TestEditionLivres::annulerEtRetablir()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    HistoriqueLivres historique(*catalogue);
    historique.modifier(catalogue->livres()[0], QStringLiteral("rien"));
    QVERIFY(!QFile::exists(banc.cheminUtilisateur(QStringLiteral("livres-modifies.json"))));
    QList<QList<Livre>> etapes{catalogue->livres()};
    const auto boutons = [&] { return catalogue->boutons(catalogue->livres()[0], banc.tarifs[0]); };
    Livre livre = catalogue->livres()[0];
    livre.prix = Centimes{1600};
    historique.modifier(livre, QStringLiteral("prix"));
    etapes.append(catalogue->livres());
    historique.garder(livre, boutons()[0], QStringLiteral("gardé"));
    etapes.append(catalogue->livres());
    historique.reporter(livre, PrixBouton::aReporter(boutons()), QStringLiteral("reportés"));
    etapes.append(catalogue->livres());
    historique.revenirAuxValeursLivrees(QStringLiteral("retour"));
    etapes.append(catalogue->livres());
    QCOMPARE(etapes.last(), etapes.first());

    const QStringList noms{QStringLiteral("prix"), QStringLiteral("gardé"), QStringLiteral("reportés"),
                           QStringLiteral("retour")};
    const auto verifier = [&](qsizetype etape) {
        QCOMPARE(catalogue->livres(), etapes[etape]);
        QCOMPARE(banc.charger()->livres(), etapes[etape]);
        QCOMPARE(historique.aAnnuler(), etape > 0 ? noms[etape - 1] : QString());
        QCOMPARE(historique.aRetablir(), etape < noms.size() ? noms[etape] : QString());
    };
    for (int fois = 0; fois < 2; ++fois) {
        verifier(4);
        for (qsizetype etape = 3; etape >= 0; --etape) {
            QCOMPARE(historique.annuler(), 1);
            verifier(etape);
        }
        for (qsizetype etape = 1; etape <= 4; ++etape) {
            QCOMPARE(historique.retablir(), 1);
            verifier(etape);
        }
    }
    historique.annuler();
    livre.prix = Centimes{1700};
    historique.modifier(livre, QStringLiteral("autre"));
    QVERIFY(historique.aRetablir().isEmpty());
}

void TestEditionLivres::echecSansTrace()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    HistoriqueLivres historique(*catalogue);
    Livre livre = catalogue->livres()[1];
    livre.poids = Grammes{410};
    {
        const DisquePlein plein;
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, historique.modifier(livre, QStringLiteral("poids")));
    }
    QVERIFY(historique.aAnnuler().isEmpty());
    historique.modifier(livre, QStringLiteral("poids"));
    const QList<Livre> apres = catalogue->livres();
    {
        const DisquePlein plein;
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, historique.annuler());
    }
    QCOMPARE(catalogue->livres(), apres);
    QCOMPARE(banc.charger()->livres(), apres);
    QCOMPARE(historique.aAnnuler(), QStringLiteral("poids")); // to be tried again
    historique.annuler();
    QCOMPARE(catalogue->livres(), banc.livres);
}

QTEST_GUILESS_MAIN(TestEditionLivres)
#include "tst_edition_livres.moc"
