#include "tests/BancEcran.h"
#include "tests/Rangees.h"
#include "ui/ContenuPrincipal.h"
#include "ui/ControlePoste.h"
#include "ui/InstanceUnique.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocalSocket>
#include <QMenuBar>
#include <QSignalSpy>
#include <QThread>

#include <algorithm>

using namespace Quillet;
using namespace std::chrono_literals;

// The frame around the screens.
class TestFenetre : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("XDG_RUNTIME_DIR", session_.path().toUtf8());
        QuilletApp::preparer();
    }

    void tailles()
    {
        BancEcran banc;
        banc.demarrer();
        Fenetre &fenetre = banc.app->fenetre();
        QCOMPARE(fenetre.windowTitle(), "Quillet");
        QCOMPARE(fenetre.width(), std::clamp(fenetre.screen()->availableSize().width(), 980, 1320));
        fenetre.resize(100, 100);
        QTRY_COMPARE(fenetre.contenu()->size(), QSize(980, 640));
        QVERIFY(fenetre.contenu()->minimumSizeHint().width() <= 980); // nothing in it asks for more
    }

    void raccourcis()
    {
        BancEcran banc;
        banc.demarrer();
        for (const auto &[nom, touche, rubrique] : Rangees<Qt::Key, Rubrique>{
                 {"3", Qt::Key_3, Rubrique::livres},
                 {"2", Qt::Key_2, Rubrique::tarifs},
                 {"1", Qt::Key_1, Rubrique::commande},
                 {"\" d’un clavier français", Qt::Key_QuoteDbl, Rubrique::livres},
                 {"é d’un clavier français", Qt::Key_Eacute, Rubrique::tarifs},
             }) {
            const Rangee rangee(nom);
            QTest::keyClick(&banc.app->fenetre(), touche, Qt::ControlModifier);
            QCOMPARE(banc.app->fenetre().contenu()->rubrique(), rubrique);
        }
    }

    void listeDesRaccourcis()
    {
        BancEcran banc;
        banc.demarrer();
        Fenetre &fenetre = banc.app->fenetre();
        for (const Qt::Key touche : {Qt::Key_F1, Qt::Key_Question}) {
            QTest::keyClick(&fenetre, touche);
            QDialog *feuille = Dialogues::devant();
            QVERIFY(feuille && feuille->windowTitle() == "Raccourcis clavier");
            QVERIFY(Ecran::montre(feuille, "Ouvrir la réponse") && Ecran::controle(feuille, "Ctrl+E"));
            feuille->reject();
        }
        banc.commander("france");
        auto *champ = qobject_cast<QLineEdit *>(Ecran::controle(&fenetre, "Pays de livraison"));
        QVERIFY(champ);
        champ->setFocus();
        QTest::keyClick(champ, '?');
        QCOMPARE(champ->text(), "?");
        QVERIFY(!QApplication::activeModalWidget());
    }

    // A window left open over New Year's Eve says and charges the new price as soon as it is used again.
    void leJourChange()
    {
        BancEcran banc;
        banc.donnees.tarifs.append(desTarifs("2027-01-01", Centimes{600}));
        banc.jour = QDate(2026, 12, 31);
        banc.demarrer();
        banc.app->commande().ajuster(banc.donnees.livres[0], 1);
        QVERIFY(Ecran::montre(&banc.app->fenetre(), "en vigueur au 1er janvier 2026"));
        banc.app->fenetre().contenu()->montrer(Rubrique::livres);
        banc.jour = QDate(2027, 1, 2);
        BancEcran::revenirA(&banc.app->fenetre());
        QVERIFY(Ecran::montre(&banc.app->fenetre(), "en vigueur au 1er janvier 2027"));
        banc.app->fenetre().contenu()->montrer(Rubrique::commande);
        QVERIFY(Ecran::valeurEnFaceDe(&banc.app->fenetre(), "Envoi Colissimo").startsWith("6,00"));
        banc.app->fenetre().contenu()->montrer(Rubrique::tarifs);
        QVERIFY(Ecran::montre(banc.app->fenetre().contenu(), "en vigueur au 1er janvier 2027"));
        banc.jour = QDate(2026, 12, 31); // nobody left the window
        banc.app->fenetre().contenu()->montrer(Rubrique::livres);
        QVERIFY(Ecran::montre(&banc.app->fenetre(), "en vigueur au 1er janvier 2026"));
    }

    // The window stays in front, and nobody touches it.
    void minuitPasse()
    {
        QDate jour(2026, 12, 31);
        const JourCourant veille([&] { return jour; }, 10ms);
        QSignalSpy change(&veille, &JourCourant::change);
        jour = jour.addDays(1);
        QVERIFY(change.wait());
    }

    // The desktop turns dark: what hands colours down to its parts must hand down new ones.
    void nuitEnCoursDeRoute()
    {
        BancEcran banc;
        banc.demarrer();
        const QWidget *plus = Ecran::controle(&banc.app->fenetre(), "Ajouter un exemplaire");
        QVERIFY(plus);
        const auto clarte = [&] { return plus->palette().color(QPalette::ButtonText).lightness(); };
        QVERIFY(clarte() < 100);
        QApplication::setPalette(Theme::palette(Theme::Mode::sombre));
        QTRY_VERIFY(clarte() > 150);
        QApplication::setPalette(Theme::palette(Theme::Mode::clair));
    }

    void uneSeuleInstance()
    {
        const QString verrou = session_.filePath("quillet.lock");
        QFile abandonne(verrou);
        QVERIFY(abandonne.open(QIODevice::WriteOnly) && abandonne.write("n’importe quoi") > 0);
        abandonne.close();

        InstanceUnique premiere(session_.path());
        QVERIFY(premiere.prendreLaPlace({})); // nobody answers for the lock left there
        QSignalSpy appelee(&premiere, &InstanceUnique::appelee);
        for (const auto &[jeton, transmis] :
             Rangees<QByteArray>{{"jeton_TIME42", "jeton_TIME42"}, {"deux\nlignes", QByteArray()}}) {
            const Rangee rangee(jeton);
            const QByteArray envoye(jeton);
            bool seule = true;
            const std::unique_ptr<QThread> autre(
                QThread::create([&] { seule = InstanceUnique(session_.path(), 1min).prendreLaPlace(envoye); }));
            autre->start();
            QTRY_COMPARE(appelee.count(), 1);
            QVERIFY(autre->wait());
            QVERIFY(!seule);
            QCOMPARE(appelee.takeFirst().constFirst().toByteArray(), transmis);
        }
    }

    // The second start says why it does not open: the first is stopped, or in a session that it cannot call.
    void premiereHorsDePortee()
    {
        InstanceUnique premiere(session_.path());
        QVERIFY(premiere.prendreLaPlace({}));
        const auto refus = [&] {
            try {
                return QString(InstanceUnique(session_.path(), 100ms).prendreLaPlace({}) ? "ouvre" : "se tait");
            } catch (const Echec &echec) {
                return echec.texte();
            }
        };
        QVERIFY2(refus().startsWith("Quillet est déjà ouvert, mais ne répond pas."), qPrintable(refus()));
        const QTemporaryDir autreSession;
        qputenv("XDG_RUNTIME_DIR", autreSession.path().toUtf8());
        const QString ailleurs = refus();
        qputenv("XDG_RUNTIME_DIR", session_.path().toUtf8());
        QVERIFY2(ailleurs.startsWith("Quillet est déjà ouvert sur les mêmes données"), qPrintable(ailleurs));
    }

    // Whatever a program of the same user sends there, the first is called only by a call, and hangs up.
    void appelsHostiles()
    {
        InstanceUnique premiere(session_.path());
        QVERIFY(premiere.prendreLaPlace({}));
        QSignalSpy appelee(&premiere, &InstanceUnique::appelee);
        const QString adresse = session_.filePath("quillet.socket");
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

    void manquesDuPoste()
    {
        using ControlePoste::manques;
        const QStringList couvertures{"a.svg", "b.SVG", "c.jpg", "notes.txt"};
        const ControlePoste::Moyens complet{
            .images = {"jpg", "svg"}, .polices = {"Inter", "Linux Libertine O"}, .francais = true, .curl = true};
        QCOMPARE(manques(complet, couvertures), QStringList());

        const QStringList tous = manques({.images = {"jpg"}, .polices = {"DejaVu Sans"}}, couvertures);
        QCOMPARE(tous.size(), 5);
        QVERIFY(tous[0].startsWith("ce système ne lit pas les images SVG : 2 couvertures"));
        QVERIFY(tous[1].contains("la police Inter (paquet fonts-inter)"));
        QVERIFY(tous[2].contains("Libertinus Serif ou Linux Libertine O"));
        QVERIFY(tous[3].contains("textes français de Qt"));
        QVERIFY(tous[4].contains("curl"));
    }

private:
    QTemporaryDir session_;
};

QTEST_MAIN(TestFenetre)
#include "tst_fenetre.moc"
