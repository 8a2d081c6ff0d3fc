#include "composants/Style.h"
#include "composants/bureau/Bureau.h"
#include "tests/FauxPortail.h"
#include "ui/QuilletApp.h"

#include <QApplication>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QSignalSpy>
#include <QTest>

#include <cstdio>
#include <cstdlib>
#include <limits>

using namespace Quillet;

using Mode = Theme::Mode;
using Contraste = Theme::Contraste;

// What the desktop says is heard through its portal, whatever state that is in, and obeyed while running.
class TestBureau : public QObject
{
    Q_OBJECT

private slots:
    void decode_data();
    void decode();
    void agrandit_data();
    void agrandit();
    void suitLePortail();
    void passeSurCeQuiNeSeLitPas();
    void portailMuet();
    void portailQuiRevient();
    void portailBavard();
    void sansBus();
    void busMuet();
    void suitAilleurs();
    void obeit();
    void laisseFaireLaPlateforme();

private:
    BusPrive bus_;
};

namespace {

const QString apparence = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString couleurs = QStringLiteral("color-scheme");

QVariant emballe(const QVariant &valeur, int fois = 1)
{
    return fois == 0 ? valeur : emballe(QVariant::fromValue(QDBusVariant(valeur)), fois - 1);
}

QVariant enReponse(const QVariantMap &deLApparence, const QVariantMap &deGnome = {})
{
    return QVariant::fromValue(ReglagesDuPortail{{apparence, deLApparence}, {gnome, deGnome}});
}

// This program again, as one that only follows the desktop: it ends well at the first change to dark.
const QString suit = QStringLiteral("--suit");
// On another bus: it ends, without waiting for an answer, once it is told to.
const QString attend = QStringLiteral("--attend");

void lancer(QProcess &programme, const QString &quoi, const QString &bus = {})
{
    auto environnement = QProcessEnvironment::systemEnvironment();
    if (!bus.isEmpty())
        environnement.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
    programme.setProcessEnvironment(environnement);
    programme.start(QCoreApplication::applicationFilePath(), {quoi});
}

bool finitBien(QProcess &programme)
{
    return QTest::qWaitFor([&] { return programme.state() == QProcess::NotRunning; }, 10'000)
           && programme.exitStatus() == QProcess::NormalExit && programme.exitCode() == 0;
}

int suivre()
{
    Bureau bureau;
    QObject::connect(&bureau, &Bureau::change, qApp, [&bureau] {
        if (bureau.souhaits().mode == Mode::sombre)
            QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}

int attendre()
{
    Bureau bureau;
    std::getchar();
    bureau.relever();
    std::_Exit(bureau.souhaits() == Souhaits() ? 0 : 1);
}

} // namespace

void TestBureau::decode_data()
{
    QTest::addColumn<QString>("espace");
    QTest::addColumn<QString>("cle");
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<Souhaits>("attendus");
    const auto ligne = [](const char *nom, const QString &espace, const char *cle, const QVariant &valeur,
                          const Souhaits &attendus) {
        QTest::newRow(nom) << espace << QString::fromLatin1(cle) << valeur << attendus;
    };
    ligne("sombre", apparence, "color-scheme", 1U, {.mode = Mode::sombre});
    ligne("clair", apparence, "color-scheme", 2U, {.mode = Mode::clair});
    ligne("sans préférence", apparence, "color-scheme", 0U, {});
    ligne("couleurs inconnues", apparence, "color-scheme", 3U, {});
    ligne("couleurs d’un autre type", apparence, "color-scheme", QStringLiteral("prefer-dark"), {});
    ligne("variante dans une variante", apparence, "color-scheme", emballe(1U, 2), {.mode = Mode::sombre});
    ligne("trop de variantes", apparence, "color-scheme", emballe(1U, 40), {});
    ligne("contraste", apparence, "contrast", 1U, {.contraste = true});
    ligne("contraste inconnu", apparence, "contrast", 2U, {});
    ligne("contraste de GNOME", QStringLiteral("org.gnome.desktop.a11y.interface"), "high-contrast", true,
          {.contrasteDeGnome = true});
    ligne("mouvement réduit", apparence, "reduced-motion", 1U, {.mouvementReduit = true});
    ligne("sans animations", gnome, "enable-animations", false, {.animations = false});
    ligne("animations d’un autre type", gnome, "enable-animations", 0U, {});
    ligne("texte plus grand", gnome, "text-scaling-factor", 1.5, {.texte = 1.5});
    ligne("texte au plus grand", gnome, "text-scaling-factor", 3.0, {.texte = 3});
    for (const double absurde : {0.0, -1.0, 0.49, 3.01, 1e9, -0.0, std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()})
        ligne(qPrintable(QStringLiteral("texte %1").arg(absurde)), gnome, "text-scaling-factor", absurde, {});
    ligne("ailleurs", gnome, "color-scheme", 1U, {});
}

void TestBureau::decode()
{
    QFETCH(QString, espace);
    QFETCH(QString, cle);
    QFETCH(QVariant, valeur);
    QFETCH(Souhaits, attendus);
    QCOMPARE(souhaits({{espace, {{cle, valeur}}}}), attendus);
    // What is no longer said is no longer wished.
    Souhaits avant{Mode::clair, true, true, true, false, 2};
    avant.retenir(espace, cle, valeur);
    avant.retenir(espace, cle, {});
    QVERIFY(avant != Souhaits{} && souhaits({}) == Souhaits{});
}

void TestBureau::agrandit_data()
{
    QTest::addColumn<double>("texte");
    QTest::addColumn<QString>("plateforme");
    QTest::addColumn<double>("echelle");
    QTest::addColumn<double>("ppp");
    QTest::addColumn<double>("reste");
    const QString x = QStringLiteral("xcb");
    const QString wayland = QStringLiteral("wayland");
    QTest::newRow("X11 seul") << 1.25 << x << 1.0 << 96.0 << 1.25;
    QTest::newRow("X11, dans la densité") << 1.25 << x << 1.25 << 96.0 << 1.0;
    QTest::newRow("X11 doublé, dans la densité") << 1.5 << x << 3.0 << 96.0 << 1.0;
    QTest::newRow("X11 doublé") << 1.25 << x << 2.0 << 96.0 << 1.25;
    QTest::newRow("plus petit, dans la densité") << 0.8 << x << 0.8 << 96.0 << 1.0;
    QTest::newRow("Wayland") << 1.25 << wayland << 1.0 << 96.0 << 1.25;
    QTest::newRow("Wayland, écran agrandi") << 1.25 << wayland << 1.25 << 96.0 << 1.25;
    QTest::newRow("Wayland, dans les points") << 1.25 << wayland << 2.0 << 120.0 << 1.0;
}

void TestBureau::agrandit()
{
    QFETCH(double, texte);
    QFETCH(QString, plateforme);
    QFETCH(double, echelle);
    QFETCH(double, ppp);
    QTEST(agrandissement(texte, plateforme, echelle, ppp), "reste");
}

void TestBureau::suitLePortail()
{
    FauxPortail portail;
    portail.reponse =
        enReponse({{couleurs, 1U}, {QStringLiteral("contrast"), 1U}}, {{QStringLiteral("text-scaling-factor"), 1.25}});
    portail.paraitre();
    Bureau bureau;
    QCOMPARE(bureau.souhaits(), Souhaits());
    QTRY_COMPARE(bureau.souhaits(), (Souhaits{.mode = Mode::sombre, .contraste = true, .texte = 1.25}));
    portail.annoncer(apparence, couleurs, 2U);
    QTRY_COMPARE(bureau.souhaits().mode, Mode::clair);
    portail.annoncer(gnome, QStringLiteral("enable-animations"), false);
    QTRY_VERIFY(bureau.souhaits().immobile());
    QCOMPARE(bureau.souhaits().texte, 1.25);
}

void TestBureau::passeSurCeQuiNeSeLitPas()
{
    FauxPortail portail;
    portail.reponse = QStringLiteral("tout va bien");
    portail.paraitre();
    Bureau bureau;
    QTRY_COMPARE(portail.questions, 1);
    portail.emettre({apparence, couleurs});
    portail.emettre({apparence, couleurs, 1U});
    portail.emettre({1, 2, 3});
    portail.emettre({});
    portail.annoncer(QString(100'000, u'x'), QString(), QVariantList());
    portail.annoncer(apparence, couleurs, emballe(1U, 30));
    portail.annoncer(apparence, QStringLiteral("contrast"), 1U); // after all those
    QTRY_COMPARE(bureau.souhaits(), (Souhaits{.contraste = true}));
}

void TestBureau::portailMuet()
{
    FauxPortail portail;
    portail.paraitre();
    Bureau bureau;
    QTRY_COMPARE(portail.questions, 1);
    portail.annoncer(apparence, couleurs, 1U);
    QTRY_COMPARE(bureau.souhaits(), (Souhaits{.mode = Mode::sombre}));
}

void TestBureau::portailQuiRevient()
{
    FauxPortail portail;
    Bureau bureau;
    portail.reponse = enReponse({{couleurs, 1U}});
    portail.paraitre(); // after the start
    QTRY_COMPARE(bureau.souhaits().mode, Mode::sombre);
    portail.disparaitre();
    portail.reponse = enReponse({{couleurs, 2U}});
    portail.paraitre();
    QTRY_COMPARE(bureau.souhaits().mode, Mode::clair);
}

void TestBureau::portailBavard()
{
    FauxPortail portail;
    portail.paraitre();
    Bureau bureau;
    QTRY_COMPARE(portail.questions, 1);
    const QSignalSpy changements(&bureau, &Bureau::change);
    QElapsedTimer temps;
    temps.start();
    for (uint i = 0; i < 2000; ++i)
        portail.annoncer(apparence, couleurs, i % 2 + 1);
    portail.annoncer(apparence, QStringLiteral("contrast"), 1U);
    QTRY_VERIFY(bureau.souhaits().contraste);
    QVERIFY2(changements.size() <= 2 + temps.elapsed() / 100, qPrintable(QString::number(changements.size())));
}

void TestBureau::sansBus()
{
    QProcess programme;
    lancer(programme, attend, QStringLiteral("unix:path=/nulle/part"));
    programme.write("\n");
    QVERIFY(finitBien(programme));
}

// It accepts whoever comes, and says nothing.
void TestBureau::busMuet()
{
    QLocalServer muet;
    const QTemporaryDir dossier;
    QVERIFY(muet.listen(dossier.filePath(QStringLiteral("bus"))));
    QProcess programme;
    lancer(programme, attend, QStringLiteral("unix:path=") + muet.fullServerName());
    QTRY_VERIFY(muet.hasPendingConnections());
    programme.write("\n");
    QVERIFY(finitBien(programme));
}

// Nothing but the follower's own code makes D-Bus known there.
void TestBureau::suitAilleurs()
{
    FauxPortail portail;
    portail.paraitre();
    QProcess programme;
    lancer(programme, suit);
    QTRY_COMPARE(portail.questions, 1);
    portail.annoncer(apparence, couleurs, 1U);
    QVERIFY(finitBien(programme));
}

void TestBureau::obeit()
{
    QuilletApp::preparer();
    FauxPortail portail;
    portail.reponse = enReponse({{couleurs, 1U}, {QStringLiteral("reduced-motion"), 1U}});
    portail.paraitre();
    Bureau bureau;
    QuilletApp::suivre(bureau);
    QWidget fenetre;
    QTRY_COMPARE(fenetre.palette(), Theme::palette(Mode::sombre));
    QVERIFY(!QApplication::style()->styleHint(QStyle::SH_Widget_Animate));
    portail.annoncer(apparence, QStringLiteral("contrast"), 1U);
    QTRY_COMPARE(fenetre.palette(), Theme::palette(Mode::sombre, Contraste::renforce));
    portail.annoncer(apparence, couleurs, 0U);
    QTRY_COMPARE(fenetre.palette(), Theme::palette(Mode::clair, Contraste::renforce));
}

void TestBureau::laisseFaireLaPlateforme()
{
    Style style;
    style.suivre({.mode = Mode::clair, .contraste = true});
    QPalette deKde(QColor(0x232629), QColor(0x1B1E20));
    style.polish(deKde);
    QCOMPARE(deKde, Theme::palette(Mode::sombre, Contraste::renforce));
    QPalette dePersonne = style.standardPalette();
    style.polish(dePersonne);
    QCOMPARE(dePersonne, Theme::palette(Mode::clair, Contraste::renforce));
}

int main(int argc, char **argv)
{
    QApplication programme(argc, argv);
    const QString quoi = QApplication::arguments().value(1);
    if (quoi == suit || quoi == attend)
        return quoi == suit ? suivre() : attendre();
    TestBureau test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_bureau.moc"
