#include "composants/Style.h"
#include "composants/bureau/Bureau.h"
#include "tests/FauxPortail.h"
#include "tests/Rangees.h"

#include <QApplication>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QSignalSpy>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdlib>
#include <limits>

using namespace Quillet;

using Mode = Theme::Mode;
using Contraste = Theme::Contraste;

namespace {

const QString apparence = "org.freedesktop.appearance";
const QString gnome = "org.gnome.desktop.interface";
const QString couleurs = "color-scheme";

QVariant emballe(const QVariant &valeur, int fois = 1)
{
    return fois == 0 ? valeur : emballe(QVariant::fromValue(QDBusVariant(valeur)), fois - 1);
}

QVariant enReponse(const QVariantMap &deLApparence, const QVariantMap &deGnome = {})
{
    return QVariant::fromValue(ReglagesDuPortail{{apparence, deLApparence}, {gnome, deGnome}});
}

// This program again, on this bus or another, as one that only follows the desktop: it ends well at the first change to
// dark, or, without waiting for an answer, as soon as it is told to.
const QString suit = "--suit";

void lancer(QProcess &programme, const QString &bus = {})
{
    auto environnement = QProcessEnvironment::systemEnvironment();
    if (!bus.isEmpty())
        environnement.insert("DBUS_SESSION_BUS_ADDRESS", bus);
    programme.setProcessEnvironment(environnement);
    programme.start(QCoreApplication::applicationFilePath(), {suit});
}

bool finitBien(QProcess &programme)
{
    return QTest::qWaitFor([&] { return programme.state() == QProcess::NotRunning; }, 10'000)
           && programme.exitStatus() == QProcess::NormalExit && programme.exitCode() == 0;
}

int suivre()
{
    Bureau bureau;
    QSocketNotifier ordre(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&ordre, &QSocketNotifier::activated, qApp, [&bureau] {
        bureau.relever();
        std::_Exit(bureau.souhaits() == Souhaits() ? 0 : 1);
    });
    QObject::connect(&bureau, &Bureau::change, qApp, [&bureau] {
        if (bureau.souhaits().mode == Mode::sombre)
            QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}

} // namespace

// What the desktop says is heard through its portal, whatever state that is in.
class TestBureau : public QObject
{
    Q_OBJECT

private slots:
    void decode()
    {
        const auto verifier = [](const char *nom, const QString &espace, const char *cle, const QVariant &valeur,
                                 const Souhaits &attendus) {
            const Rangee rangee(nom);
            QCOMPARE(souhaits({{espace, {{cle, valeur}}}}), attendus);
            // What is no longer said is no longer wished.
            Souhaits dits = attendus;
            dits.retenir(espace, cle, {});
            QCOMPARE(dits, Souhaits());
        };
        verifier("sombre", apparence, "color-scheme", 1U, {.mode = Mode::sombre});
        verifier("clair", apparence, "color-scheme", 2U, {.mode = Mode::clair});
        verifier("couleurs inconnues", apparence, "color-scheme", 3U, {});
        verifier("couleurs d’un autre type", apparence, "color-scheme", "prefer-dark", {});
        verifier("variante dans une variante", apparence, "color-scheme", emballe(1U, 2), {.mode = Mode::sombre});
        verifier("trop de variantes", apparence, "color-scheme", emballe(1U, 40), {});
        verifier("contraste", apparence, "contrast", 1U, {.contraste = true});
        verifier("contraste inconnu", apparence, "contrast", 2U, {});
        verifier("contraste de GNOME", "org.gnome.desktop.a11y.interface", "high-contrast", true,
                 {.contrasteDeGnome = true});
        verifier("mouvement réduit", apparence, "reduced-motion", 1U, {.mouvementReduit = true});
        verifier("sans animations", gnome, "enable-animations", false, {.animations = false});
        verifier("animations d’un autre type", gnome, "enable-animations", 0U, {});
        verifier("texte au plus grand", gnome, "text-scaling-factor", 3.0, {.texte = 3});
        for (const double absurde : {0.49, 3.01, std::numeric_limits<double>::quiet_NaN()})
            verifier("texte absurde", gnome, "text-scaling-factor", absurde, {});
        verifier("ailleurs", gnome, "color-scheme", 1U, {});
    }

    void agrandit()
    {
        const QString x = "xcb";
        const QString wayland = "wayland";
        for (const auto &[nom, texte, plateforme, echelle, ppp, reste] :
             Rangees<double, QString, double, double, double>{
                 {"X11 seul", 1.25, x, 1, 96, 1.25},
                 {"X11 doublé, dans la densité", 1.5, x, 3, 96, 1},
                 {"X11 doublé", 1.25, x, 2, 96, 1.25},
                 {"plus petit, dans la densité", 0.8, x, 0.8, 96, 1},
                 {"Wayland, écran agrandi", 1.25, wayland, 1.25, 96, 1.25},
                 {"Wayland, dans les points", 1.25, wayland, 2, 120, 1},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(agrandissement(texte, plateforme, echelle, ppp), reste);
        }
    }

    void suitLePortail()
    {
        FauxPortail portail;
        portail.reponse = enReponse({{couleurs, 1U}, {"contrast", 1U}}, {{"text-scaling-factor", 1.25}});
        portail.paraitre();
        Bureau bureau;
        QCOMPARE(bureau.souhaits(), Souhaits());
        QTRY_COMPARE(bureau.souhaits(), (Souhaits{.mode = Mode::sombre, .contraste = true, .texte = 1.25}));
        portail.annoncer(apparence, couleurs, 2U);
        QTRY_COMPARE(bureau.souhaits().mode, Mode::clair);
        portail.annoncer(gnome, "enable-animations", false);
        QTRY_VERIFY(bureau.souhaits().immobile());
        QCOMPARE(bureau.souhaits().texte, 1.25);
    }

    void passeSurCeQuiNeSeLitPas()
    {
        FauxPortail portail;
        portail.reponse = "tout va bien";
        portail.paraitre();
        Bureau bureau;
        QTRY_COMPARE(portail.questions, 1);
        for (const QVariantList &autre :
             QList<QVariantList>{{apparence, couleurs}, {apparence, couleurs, 1U}, {1, 2, 3}, {}})
            portail.emettre(autre);
        portail.annoncer(QString(100'000, u'x'), QString(), QVariantList());
        portail.annoncer(apparence, "contrast", 1U); // after all those
        QTRY_COMPARE(bureau.souhaits(), (Souhaits{.contraste = true}));
    }

    void portailQuiRevient()
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

    // It does not answer either.
    void portailBavard()
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
        portail.annoncer(apparence, "contrast", 1U);
        QTRY_VERIFY(bureau.souhaits().contraste);
        QVERIFY2(changements.size() <= 2 + temps.elapsed() / 100, qPrintable(QString::number(changements.size())));
    }

    // There is none, or one that accepts whoever comes and says nothing.
    void busQuiNeDitRien()
    {
        QLocalServer muet;
        const QTemporaryDir dossier;
        QVERIFY(muet.listen(dossier.filePath("bus")));
        for (const QString &adresse : QStringList{"/nulle/part", muet.fullServerName()}) {
            QProcess programme;
            lancer(programme, QStringLiteral("unix:path=") + adresse);
            if (adresse == muet.fullServerName())
                QTRY_VERIFY(muet.hasPendingConnections());
            programme.write("\n");
            QVERIFY(finitBien(programme));
        }
    }

    // Nothing but the follower's own code makes D-Bus known there.
    void suitAilleurs()
    {
        FauxPortail portail;
        portail.paraitre();
        QProcess programme;
        lancer(programme);
        QTRY_COMPARE(portail.questions, 1);
        portail.annoncer(apparence, couleurs, 1U);
        QVERIFY(finitBien(programme));
    }

    void laisseFaireLaPlateforme()
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

private:
    BusPrive bus_;
};

int main(int argc, char **argv)
{
    QApplication programme(argc, argv);
    if (QApplication::arguments().value(1) == suit)
        return suivre();
    TestBureau test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_bureau.moc"
