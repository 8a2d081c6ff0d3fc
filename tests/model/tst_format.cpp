#include "model/ArgumentDeCommande.h"
#include "model/Format.h"
#include "tests/Rangees.h"

using namespace Quillet;

namespace {

// Groups are parted by U+202F, a unit by U+00A0: rows show them as _ and ~.
QString marquee(QString texte)
{
    return texte.replace(QChar(0x202F), u'_').replace(QChar(0x00A0), u'~');
}

} // namespace

class TestFormat : public QObject
{
    Q_OBJECT

private slots:
    void nombres()
    {
        for (const auto &[attendu, obtenu] : Rangees<QString>{
                 {"1_234,50~€", Format::euros(Centimes{123450})},
                 {"-0,05~€", Format::euros(Centimes{-5})},
                 {"92_233_720_368_547_758,07~€", Format::euros(Centimes{std::numeric_limits<qint64>::max()})},
                 {"-92_233_720_368_547_758,08~€", Format::euros(Centimes{std::numeric_limits<qint64>::min()})},
                 {"—", Format::euros(std::nullopt)},
                 {"+0,05~€", Format::ecart(Centimes{5})},
                 {"-0,05~€", Format::ecart(Centimes{-5})},
                 {"€12.50", Format::euros(Centimes{1250}, Langue::anglais)},
                 {"-€0.05", Format::euros(Centimes{-5}, Langue::anglais)},
                 {"12,50", Format::montant(Centimes{1250})},
                 {"1,250", Format::kilos(Grammes{1250})},
                 {"0,080", Format::kilos(Grammes{80})},
                 {"1_250 g", Format::poids(Grammes{1250})},
                 {"0 g", Format::palier(Grammes{0})},
                 {"999 g", Format::palier(Grammes{999})},
                 {"1 kg", Format::palier(Grammes{1000})},
                 {"1500 g", Format::palier(Grammes{1500})},
                 {"3,49 %", Format::pourcentage(Taux{349})},
                 {"0,50 %", Format::pourcentage(Taux{50})},
             })
            QCOMPARE(marquee(obtenu), attendu);
    }

    void arguments()
    {
        for (const auto &[texte, attendu] : Rangees<QString>{
                 {"/home/ada/quillet_1.0.deb", "/home/ada/quillet_1.0.deb"},
                 {"", "''"},
                 {"/mes livres/$(rm -r ~)", "'/mes livres/$(rm -r ~)'"},
                 {"l'été", "'l'\\''été'"},
             })
            QCOMPARE(argumentDeCommande(texte), attendu);
    }

    void dates()
    {
        for (const auto &[iso, attendu] : Rangees<const char *>{
                 {"2025-03-14", "14 mars 2025"},
                 {"2025-03-01", "1er mars 2025"},
                 {"2026-08-10", "10 août 2026"},
                 {"1500-02-28", "28 février 1500"},
             }) {
            QCOMPARE(Format::date(Jour(iso)), attendu);
            QCOMPARE(Format::iso(Jour(iso).date()), iso);
        }

        for (const char *intacte : {"", "2025-13-40", "2026-02-31", "2026-2-03", " 2026-02-03", "2026-02-03T10:00",
                                    "+026-02-03", "2026/02/03", "demain"})
            QCOMPARE(Format::date(Jour(intacte)), intacte);
    }
};

QTEST_GUILESS_MAIN(TestFormat)
#include "tst_format.moc"
