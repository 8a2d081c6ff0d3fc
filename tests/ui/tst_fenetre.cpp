#include "tests/Banc.h"
#include "ui/ContenuPrincipal.h"
#include "ui/Fenetre.h"
#include "ui/InstanceUnique.h"
#include "ui/QuilletApp.h"
#include "visite/Ecran.h"
#include "visite/HorsReseau.h"

#include <QApplication>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

// The frame around the screens.
class TestFenetre : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tailles();
    void menu();
    void raccourcis_data();
    void raccourcis();
    void leJourChange();
    void nuitEnCoursDeRoute();
    void uneSeuleInstance();

private:
    std::unique_ptr<QuilletApp> ouvrir(const Banc &banc);

    QDate jour_{2026, 3, 2};
    QTemporaryDir session_;
};

void TestFenetre::initTestCase()
{
    qputenv("XDG_RUNTIME_DIR", session_.path().toUtf8());
    QuilletApp::preparer();
}

std::unique_ptr<QuilletApp> TestFenetre::ouvrir(const Banc &banc)
{
    banc.deposer();
    auto app = std::make_unique<QuilletApp>(
        banc.ressources(), banc.stockage(), banc.preferences(), [this] { return jour_; }, horsReseau());
    app->fenetre().show();
    if (!QTest::qWaitForWindowActive(&app->fenetre()))
        qFatal("La fenêtre ne s’ouvre pas");
    return app;
}

void TestFenetre::tailles()
{
    const Banc banc;
    const auto app = ouvrir(banc);
    Fenetre &fenetre = app->fenetre();
    QCOMPARE(fenetre.windowTitle(), QStringLiteral("Quillet"));
    QCOMPARE(fenetre.width(), std::clamp(fenetre.screen()->availableSize().width(), 980, 1320));
    fenetre.resize(100, 100);
    QTRY_COMPARE(fenetre.contenu()->size(), QSize(980, 640));
    QVERIFY(fenetre.contenu()->minimumSizeHint().width() <= 980); // nothing in it asks for more
}

void TestFenetre::menu()
{
    const Banc banc;
    const auto app = ouvrir(banc);
    QStringList textes;
    for (const QAction *action : app->fenetre().menuBar()->actions().value(0)->menu()->actions())
        if (!action->isSeparator())
            textes.append(QString(action->text()).remove(u'&'));
    QCOMPARE(textes, (QStringList{QStringLiteral("À propos de Quillet"), QStringLiteral("Rechercher les mises à jour…"),
                                  QStringLiteral("Quitter")}));
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
    const Banc banc;
    const auto app = ouvrir(banc);
    app->fenetre().contenu()->montrer(std::nullopt);
    QTest::keyClick(&app->fenetre(), touche, Qt::ControlModifier);
    QCOMPARE(app->fenetre().contenu()->rubrique(), rubrique);
}

// A window left open over New Year's Eve says and charges the new price as soon as it is used again.
void TestFenetre::leJourChange()
{
    Banc banc;
    banc.tarifs.append(desTarifs(QStringLiteral("2027-01-01"), Centimes{600}));
    jour_ = QDate(2026, 12, 31);
    const auto app = ouvrir(banc);
    app->commande().ajuster(banc.livres[0], 1);
    QVERIFY(Ecran::montre(&app->fenetre(), QStringLiteral("en vigueur au 1er janvier 2026")));
    jour_ = QDate(2027, 1, 2);
    QWidget autre;
    autre.show();
    autre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&autre));
    app->fenetre().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&app->fenetre()));
    QVERIFY(Ecran::montre(&app->fenetre(), QStringLiteral("en vigueur au 1er janvier 2027")));
    QVERIFY(
        Ecran::valeurEnFaceDe(&app->fenetre(), QStringLiteral("Envoi Colissimo")).startsWith(QStringLiteral("6,00")));
    app->fenetre().contenu()->montrer(Rubrique::tarifs);
    QVERIFY(Ecran::montre(app->fenetre().contenu(), QStringLiteral("en vigueur au 1er janvier 2027")));
    jour_ = QDate(2026, 3, 2);
}

// The desktop turns dark: what hands colours down to its parts must hand down new ones.
void TestFenetre::nuitEnCoursDeRoute()
{
    const Banc banc;
    const auto app = ouvrir(banc);
    const QWidget *plus = Ecran::controle(&app->fenetre(), QStringLiteral("Ajouter un exemplaire"));
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
    QVERIFY(premiere.prendreLaPlace()); // nobody answers for the lock left there
    QSignalSpy appelee(&premiere, &InstanceUnique::appelee);
    InstanceUnique seconde;
    QVERIFY(!seconde.prendreLaPlace());
    QTRY_COMPARE(appelee.count(), 1);
}

QTEST_MAIN(TestFenetre)
#include "tst_fenetre.moc"
