#include "composants/Ressort.h"
#include "composants/Style.h"
#include "tests/Rangees.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <cmath>

using namespace Quillet;

class TestRessort : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { anime_.show(); }

    // Beyond it by exp(-πζ/√(1-ζ²)), the overshoot of a damped spring.
    void atteintSaCible()
    {
        for (const auto &[nom, reponse, amortissement, depassement] :
             Rangees<double, double, double>{{"action", 0.5, 0.85, 0.0063}, {"survol", 0.4, 0.72, 0.0385}}) {
            const Rangee rangee(nom);
            QList<double> valeurs;
            Ressort ressort({reponse, amortissement}, &anime_, [&](double valeur) { valeurs.append(valeur); });
            ressort.vers(1);
            for (int t = 0; t <= ressort.duration(); ++t)
                ressort.setCurrentTime(t);
            QCOMPARE(valeurs.last(), 1.0);
            const double maximum = *std::ranges::max_element(valeurs);
            QVERIFY2(std::abs(maximum - 1 - depassement) < 0.001, qPrintable(QString::number(maximum)));
        }
    }

    void gardeSonElan()
    {
        double valeur = 0;
        Ressort ressort({0.5, 0.85}, &anime_, [&](double v) { valeur = v; });
        ressort.vers(1);
        ressort.setCurrentTime(100);
        const double avant = valeur;
        QVERIFY(avant > 0.2 && avant < 0.9);
        ressort.vers(0);
        ressort.setCurrentTime(5);
        QVERIFY2(valeur > avant, "the motion turned back at once instead of slowing down first");
        ressort.setCurrentTime(ressort.duration());
        QCOMPARE(valeur, 0.0);
    }

    void cacheeElleSaute()
    {
        QWidget cachee;
        Ressort ressort({0.5, 0.85}, &cachee);
        ressort.vers(1);
        QCOMPARE(ressort.valeur(), 1.0);
    }

    void sansAnimation()
    {
        auto *style = new Style;
        style->suivre({.animations = false});
        QApplication::setStyle(style);
        int appels = 0;
        Ressort ressort({0.5, 0.85}, &anime_, [&](double) { ++appels; });
        ressort.vers(1);
        QCOMPARE(ressort.valeur(), 1.0);
        QCOMPARE(ressort.state(), QAbstractAnimation::Stopped);
        QCOMPARE(appels, 1);
    }

private:
    QWidget anime_;
};

QTEST_MAIN(TestRessort)
#include "tst_ressort.moc"
