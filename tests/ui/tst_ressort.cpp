#include "composants/Ressort.h"

#include <QApplication>
#include <QProxyStyle>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cmath>

using namespace Quillet;

class TestRessort : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void atteintSaCible_data();
    void atteintSaCible();
    void gardeSonElan();
    void cacheeElleSaute();
    void sansAnimation();

private:
    QWidget anime_;
};

namespace {

class SansAnimation : public QProxyStyle
{
public:
    int styleHint(StyleHint indice, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *retour) const override
    {
        return indice == SH_Widget_Animate ? 0 : QProxyStyle::styleHint(indice, option, widget, retour);
    }
};

} // namespace

void TestRessort::initTestCase()
{
    anime_.show();
}

void TestRessort::atteintSaCible_data()
{
    QTest::addColumn<double>("reponse");
    QTest::addColumn<double>("amortissement");
    QTest::addColumn<double>("depassement"); // exp(-πζ/√(1-ζ²)), the overshoot of a damped spring
    QTest::newRow("action") << 0.5 << 0.85 << 0.0063;
    QTest::newRow("survol") << 0.4 << 0.72 << 0.0385;
}

void TestRessort::atteintSaCible()
{
    QFETCH(double, reponse);
    QFETCH(double, amortissement);
    QFETCH(double, depassement);
    double dernier = 0;
    double maximum = 0;
    Ressort ressort({reponse, amortissement}, &anime_,
                    [&](double valeur) { maximum = std::max(maximum, dernier = valeur); });
    ressort.vers(1);
    for (int t = 0; t <= ressort.duration(); ++t)
        ressort.setCurrentTime(t);
    QCOMPARE(dernier, 1.0);
    QVERIFY2(std::abs(maximum - 1 - depassement) < 0.001, qPrintable(QString::number(maximum)));
}

void TestRessort::gardeSonElan()
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

void TestRessort::cacheeElleSaute()
{
    QWidget cachee;
    Ressort ressort({0.5, 0.85}, &cachee);
    ressort.vers(1);
    QCOMPARE(ressort.valeur(), 1.0);
}

void TestRessort::sansAnimation()
{
    QApplication::setStyle(new SansAnimation);
    int appels = 0;
    Ressort ressort({0.5, 0.85}, &anime_, [&](double) { ++appels; });
    ressort.vers(1);
    QCOMPARE(ressort.valeur(), 1.0);
    QCOMPARE(ressort.state(), QAbstractAnimation::Stopped);
    QCOMPARE(appels, 1);
}

QTEST_MAIN(TestRessort)
#include "tst_ressort.moc"
