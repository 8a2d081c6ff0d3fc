#include "model/Format.h"

#include <QTest>

using namespace Quillet;

class TestFormat : public QObject
{
    Q_OBJECT

private slots:
    void nombres_data();
    void nombres();
    void dates_data();
    void dates();
};

namespace {

// Groups are parted by U+202F, a unit by U+00A0: rows show them as _ and ~.
QString marquee(QString texte)
{
    return texte.replace(QChar(0x202F), u'_').replace(QChar(0x00A0), u'~');
}

} // namespace

void TestFormat::nombres_data()
{
    QTest::addColumn<QString>("obtenu");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *attendu, const QString &obtenu) {
        QTest::addRow("%s", attendu) << marquee(obtenu) << QString::fromUtf8(attendu);
    };
    cas("12,50~€", Format::euros(Centimes{1250}));
    cas("1_234,50~€", Format::euros(Centimes{123450}));
    cas("-0,05~€", Format::euros(Centimes{-5}));
    cas("92_233_720_368_547_758,07~€", Format::euros(Centimes{std::numeric_limits<qint64>::max()}));
    cas("-92_233_720_368_547_758,08~€", Format::euros(Centimes{std::numeric_limits<qint64>::min()}));
    cas("—", Format::euros(std::nullopt));
    cas("+0,05~€", Format::ecart(Centimes{5}));
    cas("-0,05~€", Format::ecart(Centimes{-5}));
    cas("€12.50", Format::euros(Centimes{1250}, Langue::anglais));
    cas("-€0.05", Format::euros(Centimes{-5}, Langue::anglais));
    cas("12,50", Format::montant(Centimes{1250}));
    cas("1,250", Format::kilos(Grammes{1250}));
    cas("0,080", Format::kilos(Grammes{80}));
    cas("1_250 g", Format::poids(Grammes{1250}));
    cas("0 g", Format::palier(Grammes{0}));
    cas("999 g", Format::palier(Grammes{999}));
    cas("1 kg", Format::palier(Grammes{1000}));
    cas("1500 g", Format::palier(Grammes{1500}));
    cas("3,49 %", Format::pourcentage(Taux{349}));
    cas("0,50 %", Format::pourcentage(Taux{50}));
}

void TestFormat::nombres()
{
    QFETCH(QString, obtenu);
    QFETCH(QString, attendu);
    QCOMPARE(obtenu, attendu);
}

void TestFormat::dates_data()
{
    QTest::addColumn<QString>("iso");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *iso, const char *attendu) {
        QTest::addRow("%s", iso) << QString::fromUtf8(iso) << QString::fromUtf8(attendu);
    };
    cas("2025-03-14", "14 mars 2025");
    cas("2025-03-01", "1er mars 2025");
    cas("2026-08-10", "10 août 2026");
    cas("2026-12-21", "21 décembre 2026");
    cas("1500-02-28", "28 février 1500");
    for (const char *intacte : {"", "2025-13-40", "2026-02-31", "2026-2-03", " 2026-02-03", "2026-02-03T10:00",
                                "+026-02-03", "2026/02/03", "demain"})
        cas(intacte, intacte);
}

void TestFormat::dates()
{
    QFETCH(QString, iso);
    QFETCH(QString, attendu);
    QCOMPARE(Format::date(Jour(iso)), attendu);
    const QDate jour = QDate::fromString(iso, Qt::ISODate);
    if (jour.isValid() && iso != attendu)
        QCOMPARE(Format::iso(jour), iso);
}

QTEST_GUILESS_MAIN(TestFormat)
#include "tst_format.moc"
