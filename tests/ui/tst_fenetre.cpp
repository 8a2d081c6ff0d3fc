#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"
#include "ui/InstanceUnique.h"
#include "visite/Ecran.h"

#include <QApplication>
#include <QLocalSocket>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Quillet;
using namespace std::chrono_literals;

// The frame around the screens.
class TestFenetre : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tailles();
    void raccourcis_data();
    void raccourcis();
    void leJourChange();
    void minuitPasse();
    void nuitEnCoursDeRoute();
    void uneSeuleInstance();
    void appelsHostiles();

private:
    QTemporaryDir session_;
};

void TestFenetre::initTestCase()
{
    qputenv("XDG_RUNTIME_DIR", session_.path().toUtf8());
    QuilletApp::preparer();
}

void TestFenetre::tailles()
{
    BancEcran banc;
    banc.demarrer();
    Fenetre &fenetre = banc.app->fenetre();
    QCOMPARE(fenetre.windowTitle(), QStringLiteral("Quillet"));
    QCOMPARE(fenetre.width(), std::clamp(fenetre.screen()->availableSize().width(), 980, 1320));
    fenetre.resize(100, 100);
    QTRY_COMPARE(fenetre.contenu()->size(), QSize(980, 640));
    QVERIFY(fenetre.contenu()->minimumSizeHint().width() <= 980); // nothing in it asks for more
}

void TestFenetre::raccourcis_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Rubrique>("rubrique");
    QTest::newRow("3") << Qt::Key_3 << Rubrique::livres;
    QTest::newRow("2") << Qt::Key_2 << Rubrique::tarifs;
    QTest::newRow("1") << Qt::Key_1 << Rubrique::commande;
    QTest::newRow("\" d’un clavier français") << Qt::Key_QuoteDbl << Rubrique::livres;
    QTest::newRow("é d’un clavier français") << Qt::Key_Eacute << Rubrique::tarifs;
}

void TestFenetre::raccourcis()
{
    QFETCH(Qt::Key, touche);
    QFETCH(Rubrique, rubrique);
    BancEcran banc;
    banc.demarrer();
    banc.app->fenetre().contenu()->montrer(std::nullopt);
    QTest::keyClick(&banc.app->fenetre(), touche, Qt::ControlModifier);
    QCOMPARE(banc.app->fenetre().contenu()->rubrique(), rubrique);
}

// A window left open over New Year's Eve says and charges the new price as soon as it is used again.
void TestFenetre::leJourChange()
{
    BancEcran banc;
    banc.donnees.tarifs.append(desTarifs("2027-01-01", Centimes{600}));
    banc.jour = QDate(2026, 12, 31);
    banc.demarrer();
    banc.app->commande().ajuster(banc.donnees.livres[0], 1);
    QVERIFY(Ecran::montre(&banc.app->fenetre(), QStringLiteral("en vigueur au 1er janvier 2026")));
    banc.app->fenetre().contenu()->montrer(Rubrique::livres);
    banc.jour = QDate(2027, 1, 2);
    BancEcran::revenirA(&banc.app->fenetre());
    QVERIFY(Ecran::montre(&banc.app->fenetre(), QStringLiteral("en vigueur au 1er janvier 2027")));
    banc.app->fenetre().contenu()->montrer(Rubrique::commande);
    QVERIFY(Ecran::valeurEnFaceDe(&banc.app->fenetre(), QStringLiteral("Envoi Colissimo"))
                .startsWith(QStringLiteral("6,00")));
    banc.app->fenetre().contenu()->montrer(Rubrique::tarifs);
    QVERIFY(Ecran::montre(banc.app->fenetre().contenu(), QStringLiteral("en vigueur au 1er janvier 2027")));
    banc.jour = QDate(2026, 12, 31); // nobody left the window
    banc.app->fenetre().contenu()->montrer(Rubrique::livres);
    QVERIFY(Ecran::montre(&banc.app->fenetre(), QStringLiteral("en vigueur au 1er janvier 2026")));
}

// The window stays in front, and nobody touches it.
void TestFenetre::minuitPasse()
{
    QDate jour(2026, 12, 31);
    const JourCourant veille([&] { return jour; }, 10ms);
    QSignalSpy change(&veille, &JourCourant::change);
    jour = jour.addDays(1);
    QVERIFY(change.wait());
}

// The desktop turns dark: what hands colours down to its parts must hand down new ones.
void TestFenetre::nuitEnCoursDeRoute()
{
    BancEcran banc;
    banc.demarrer();
    const QWidget *plus = Ecran::controle(&banc.app->fenetre(), QStringLiteral("Ajouter un exemplaire"));
    QVERIFY(plus);
    const auto clarte = [&] { return plus->palette().color(QPalette::ButtonText).lightness(); };
    QVERIFY(clarte() < 100);
    QApplication::setPalette(Theme::palette(Theme::Mode::sombre));
    QTRY_VERIFY(clarte() > 150);
    QApplication::setPalette(Theme::palette(Theme::Mode::clair));
}

void TestFenetre::uneSeuleInstance()
{
    const QString verrou = session_.filePath(QStringLiteral("quillet.lock"));
    QFile abandonne(verrou);
    QVERIFY(abandonne.open(QIODevice::WriteOnly) && abandonne.write("n’importe quoi") > 0);
    abandonne.close();

    InstanceUnique premiere;
    QVERIFY(premiere.prendreLaPlace({})); // nobody answers for the lock left there
    QSignalSpy appelee(&premiere, &InstanceUnique::appelee);
    InstanceUnique seconde;
    QVERIFY(!seconde.prendreLaPlace("jeton_TIME42"));
    QTRY_COMPARE(appelee.count(), 1);
    QCOMPARE(appelee.takeFirst().constFirst().toByteArray(), QByteArray("jeton_TIME42"));
    QVERIFY(!seconde.prendreLaPlace("deux\nlignes"));
    QTRY_COMPARE(appelee.count(), 1);
    QCOMPARE(appelee.takeFirst().constFirst().toByteArray(), QByteArray());
}

// Whatever a program of the same user sends there, the first is called only by a call, and hangs up.
void TestFenetre::appelsHostiles()
{
    InstanceUnique premiere;
    QVERIFY(premiere.prendreLaPlace({}));
    QSignalSpy appelee(&premiere, &InstanceUnique::appelee);
    const QString adresse = session_.filePath(QStringLiteral("quillet.socket"));
    QLocalSocket muet;
    QLocalSocket bavard;
    for (QLocalSocket *prise : {&muet, &bavard}) {
        prise->connectToServer(adresse);
        QVERIFY(prise->waitForConnected());
    }
    bavard.write(QByteArray(20'000'000, 'x') + '\n');
    QTRY_COMPARE(bavard.state(), QLocalSocket::UnconnectedState);
    QTRY_COMPARE(muet.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(appelee.count(), 0);
}

QTEST_MAIN(TestFenetre)
#include "tst_fenetre.moc"
