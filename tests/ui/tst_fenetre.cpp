#include "tests/BancEcran.h"
#include "tests/Rangees.h"
#include "ui/Colonnes.h"
#include "ui/ContenuPrincipal.h"
#include "ui/ControlePoste.h"
#include "ui/InstanceUnique.h"
#include "ui/PlaceDeLaFenetre.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QLocalSocket>
#include <QMenuBar>
#include <QSignalSpy>
#include <QSplitter>
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

    void placesRelues()
    {
        for (const auto &[nom, texte, place] : Rangees<QString, std::optional<PlaceDeLaFenetre>>{
                 {"place", "10 -20 1200 800", PlaceDeLaFenetre{{10, -20, 1200, 800}}},
                 {"agrandie", "10 20 1200 800 agrandie", PlaceDeLaFenetre{{10, 20, 1200, 800}, true}},
                 {"rien", "", {}},
                 {"trop peu", "10 20 1200", {}},
                 {"mot", "10 20 mille 800", {}},
                 {"vide", "10 20 0 800", {}},
                 {"démesuré", "10 20 1200 99999", {}},
                 {"au bout des entiers", "-2147483648 20 1200 800", {}},
                 {"autre état", "10 20 1200 800 réduite", {}},
             }) {
            const Rangee rangee(nom);
            QVERIFY(PlaceDeLaFenetre::lue(texte) == place);
            QCOMPARE(place ? place->texte() : texte, texte);
        }
    }

    // Two screens side by side, of which the second may be gone.
    void placesSurLesEcrans()
    {
        const QRect premier(0, 0, 1600, 900);
        const QRect second(1600, 0, 2000, 1200);
        for (const auto &[nom, ecrans, voulue, obtenue] : Rangees<QList<QRect>, QRect, QRect>{
                 {"telle quelle", {premier, second}, {1700, 50, 1300, 800}, {1700, 50, 1300, 800}},
                 {"écran débranché", {premier}, {1700, 50, 1300, 800}, {300, 50, 1300, 800}},
                 {"à cheval", {premier, second}, {1500, 0, 1300, 800}, {1600, 0, 1300, 800}},
                 {"trop grande", {premier}, {100, 100, 1900, 1100}, {0, 0, 1600, 900}},
                 {"trop petite", {premier}, {50, 60, 10, 10}, {50, 60, 980, 640}},
                 {"au-dessus", {premier}, {50, -500, 1000, 700}, {50, 0, 1000, 700}},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(PlaceDeLaFenetre{voulue}.dans(ecrans, {980, 640}), obtenue);
        }
    }

    void commeElleSOuvreElleNEstPasRetenue()
    {
        BancEcran banc;
        const Preferences preferences = banc.donnees.preferences();
        banc.demarrer();
        auto *colonnes = banc.app->fenetre().findChild<QSplitter *>("colonne.rubriques");
        emit colonnes->splitterMoved(1, 1); // rests after the window does
        QTRY_VERIFY(!preferences.texte("colonne.rubriques").isEmpty());
        QVERIFY(preferences.texte("fenetre").isEmpty());
    }

    void dUnDemarrageALAutre()
    {
        BancEcran banc;
        const Preferences preferences = banc.donnees.preferences();
        banc.demarrer();
        const QSize taille(banc.app->fenetre().minimumSizeHint().width(), 700); // which any screen holds
        auto *colonnes = banc.app->fenetre().findChild<QSplitter *>("colonne.rubriques");
        QTest::mouseClick(colonnes->handle(1), Qt::LeftButton); // moved by nobody
        banc.app->fenetre().resize(taille);                     // to rest after the columns
        QTRY_VERIFY(preferences.texte("fenetre").endsWith(QString::number(taille.width()) + " 700"));
        QVERIFY(preferences.texte("colonne.rubriques").isEmpty());
        banc.demarrer();
        QCOMPARE(banc.app->fenetre().size(), taille);
        colonnes = banc.app->fenetre().findChild<QSplitter *>("colonne.rubriques");
        banc.app->fenetre().resize(1200, 700); // room to move
        QWidget *poignee = colonnes->handle(1);
        QTest::mousePress(poignee, Qt::LeftButton, {}, {1, 100});
        QTest::mouseMove(poignee, {31, 100});
        QTest::mouseRelease(poignee, Qt::LeftButton, {}, {31, 100});
        const int large = colonnes->sizes().constFirst();
        QVERIFY(large > 220);
        QTRY_COMPARE(preferences.texte("colonne.rubriques"), QString::number(large));
        banc.app->fenetre().showMaximized();
        QTRY_VERIFY(preferences.texte("fenetre").endsWith("agrandie"));
        banc.demarrer();
        QVERIFY(banc.app->fenetre().isMaximized());
        const QFont usuelle = QApplication::font();
        const auto rendre = qScopeGuard([&] { QApplication::setFont(usuelle); });
        for (const int foisPlusGrand : {1, 2}) {
            QFont police = usuelle;
            police.setPointSizeF(usuelle.pointSizeF() * foisPlusGrand);
            QApplication::setFont(police);
            auto *gauche = new QWidget;
            const std::unique_ptr<QSplitter> partage(
                Colonnes::entre(gauche, new QWidget, gauche, 210, "rubriques", preferences));
            partage->resize(1200, 100);
            partage->show();
            QTRY_COMPARE(partage->sizes().constFirst(), foisPlusGrand * large);
        }
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

    // Two homes whose own data are one folder, as two accounts may share it.
    void memesDonneesParUnLien()
    {
        for (const bool enCoursDeSession : {false, true}) {
            const QTemporaryDir commun;
            const auto lier = [&](const QString &maison) {
                return QDir(commun.path()).mkpath(maison + "/Quillet")
                       && QFile::link(commun.path(), commun.filePath(maison + "/Quillet/donnees"));
            };
            QVERIFY(lier("b"));
            InstanceUnique premiere(commun.filePath("a"));
            if (enCoursDeSession)
                QVERIFY(premiere.prendreLaPlace({}) && lier("a"));
            else
                QVERIFY(lier("a") && premiere.prendreLaPlace({}));
            premiere.suivreLesDonnees();
            const QTemporaryDir autreSession;
            qputenv("XDG_RUNTIME_DIR", autreSession.path().toUtf8());
            QVERIFY_THROWS_EXCEPTION(Echec, (void)InstanceUnique(commun.filePath("b")).prendreLaPlace({}));
            qputenv("XDG_RUNTIME_DIR", session_.path().toUtf8());
        }
    }

    // The order in progress stays, but for what is not sold any more.
    void donneesChangeesAilleurs()
    {
        BancEcran banc;
        banc.origine = Origine::utilisateur;
        banc.demarrer();
        banc.commander("france");
        banc.app->commande().ajuster(banc.donnees.livres[1], 1);
        QWidget *relire = Ecran::controle(&banc.app->fenetre(), "Les relire");
        QVERIFY(!relire);

        const auto ailleurs = Catalogue::charge(banc.ressources(), banc.donnees.stockage());
        QList<Livre> livres = ailleurs->donnees().livres;
        livres.removeAt(1);
        livres[0].titre = "Vu d’ailleurs";
        ailleurs->remplacer(livres);
        QTRY_VERIFY(relire = Ecran::controle(&banc.app->fenetre(), "Les relire"));
        banc.donnees.ecrireUtilisateur("donnees/destinations.json", "[");
        QVERIFY(Ecran::cliquer(&banc.app->fenetre(), "Les relire"));
        QVERIFY(relire->isVisible()); // what cannot be read is said, and the former stands
        QCOMPARE(banc.app->commande().bon().quantites.size(), 2);

        banc.donnees.ecrireUtilisateur("donnees/destinations.json", Json::encoder(banc.donnees.destinations));
        bool tourne = false; // the window, while the disk is read
        bool vivante = false;
        const auto tour = [&] { tourne = true; };
        const auto demander = [&] { QMetaObject::invokeMethod(this, tour, Qt::QueuedConnection); };
        connect(qobject_cast<QAbstractButton *>(relire), &QAbstractButton::released, this, demander);
        connect(&banc.app->catalogue(), &Catalogue::recharge, this, [&] { vivante = tourne; });
        QVERIFY(Ecran::cliquer(&banc.app->fenetre(), "Les relire"));
        QVERIFY(vivante);
        QTRY_VERIFY(!relire->isVisible());
        QCOMPARE(banc.app->commande().bon().quantites, (QMap<qint64, int>{{banc.donnees.livres[0].id, 2}}));
        QVERIFY(Ecran::controle(&banc.app->fenetre(), "Vu d’ailleurs"));
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
