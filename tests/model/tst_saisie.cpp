#include "model/Saisie.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

using namespace Quillet;

namespace {

template <typename T>
QString raison(const Saisie::Lecture<T> &lecture)
{
    const auto *refus = std::get_if<Saisie::Refus>(&lecture);
    return refus ? lisible(refus->raison) : QString();
}

} // namespace

class TestSaisie : public QObject
{
    Q_OBJECT

private slots:
    void prix()
    {
        const auto raisonDe = [](const char *saisie) { return raison(Saisie::prix(saisie)); };
        for (const auto &[saisie, centimes] : Rangees<qint64>{
                 {"18", 1800},
                 {"18,5", 1850},
                 {"18.05", 1805},
                 {",5", 50},
                 {"7,", 700},
                 {"0", 0},
                 {" 1\u202f234,50\u00a0€", 123450},
                 {"99 999,99", 9'999'999},
                 {"00000000000000000000012", 1200},
             }) {
            const Rangee rangee(saisie);
            QCOMPARE(raisonDe(saisie), QString());
            QCOMPARE(std::get<Centimes>(Saisie::prix(saisie)), Centimes{centimes});
            QCOMPARE(std::get<Centimes>(Saisie::prix(Saisie::ecrit(Centimes{centimes}))), Centimes{centimes});
        }
        for (const auto &[saisie, refus] : Rangees<const char *>{
                 {"", "Il faut un prix."},
                 {"€", "Il faut un prix."},
                 {"-1", "Un prix ne peut pas être négatif."},
                 {"\u22121", "Un prix ne peut pas être négatif."},
                 {"18,555", "Deux décimales au plus, comme 18,50."},
                 {"100000", "Un prix va jusqu’à 99 999,99 €."},
                 {"99999999999999999999999", "Un prix va jusqu’à 99 999,99 €."},
             })
            QCOMPARE(raisonDe(saisie), refus);
        for (const char *lettres : {"dix", "1,2,3", "1.234,5", ",", "1e3", "0x10", "\u0661\u0662", "+5", "5€€"})
            QVERIFY2(raisonDe(lettres) == u"Un prix s’écrit en chiffres, comme 18,50.", lettres);
    }

    void poids()
    {
        const char *entiers = "Un poids s’écrit en grammes entiers, comme 355.";
        for (const auto &[saisie, poids, refus] : Rangees<std::optional<Grammes>, const char *>{
                 {"355", Grammes{355}, ""},
                 {"1 250 g", Grammes{1250}, ""},
                 {"  ", {}, ""}, // not weighed yet
                 {"1kg", {}, entiers},
                 {"1,5", {}, entiers},
                 {"-3", {}, "Un poids ne peut pas être négatif."},
                 {"1000000", {}, "Un poids va jusqu’à 999 999 g."},
             }) {
            const Rangee rangee(saisie);
            const auto lu = Saisie::poids(saisie);
            QCOMPARE(raison(lu), refus);
            if (raison(lu).isEmpty())
                QCOMPARE(std::get<std::optional<Grammes>>(lu), poids);
        }
    }
};

QTEST_GUILESS_MAIN(TestSaisie)
#include "tst_saisie.moc"
