#include "model/Saisie.h"
#include "tests/Banc.h"

#include <QTest>

using namespace Quillet;

class TestSaisie : public QObject
{
    Q_OBJECT

private slots:
    void prix_data();
    void prix();
    void poids_data();
    void poids();
};

namespace {

template <typename T>
QString raison(const Saisie::Lecture<T> &lecture)
{
    const auto *refus = std::get_if<Saisie::Refus>(&lecture);
    return refus ? lisible(refus->raison) : QString();
}

} // namespace

void TestSaisie::prix_data()
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

void TestSaisie::prix()
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

void TestSaisie::poids_data()
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

void TestSaisie::poids()
{
    QFETCH(QString, saisie);
    QFETCH(std::optional<Grammes>, poids);
    QFETCH(QString, refus);
    const auto lu = Saisie::poids(saisie);
    QCOMPARE(raison(lu), refus);
    if (refus.isEmpty())
        QCOMPARE(std::get<std::optional<Grammes>>(lu), poids);
}

QTEST_GUILESS_MAIN(TestSaisie)
#include "tst_saisie.moc"
