#include "composants/Attente.h"
#include "composants/BoutonCopier.h"
#include "composants/ChampDeFiche.h"
#include "composants/Choix.h"
#include "composants/ChoixSegmente.h"
#include "composants/Defilement.h"
#include "composants/Feuille.h"
#include "composants/LecteurDEcran.h"
#include "composants/Pile.h"
#include "composants/ZoneDeTexte.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSemaphore>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>

#include <stdexcept>

using namespace Quillet;
using namespace std::chrono_literals;

// The controls, worked by hand and by a screen reader, which sees and presses what hand and keys cannot reach.
class TestControles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { LecteurDEcran::preparer(); }

    void unSegmentDitSonChoixUneFois()
    {
        ChoixSegmente choix({"a", "b"}, {});
        choix.montrer(0);
        QSignalSpy choisi(&choix, &ChoixSegmente::choisi);
        const auto dits = [&](const std::function<void()> &geste) {
            choisi.clear();
            geste();
            QStringList rangs;
            for (const auto &dit : std::as_const(choisi))
                rangs.append(dit.at(0).toString());
            return rangs.join(u' ');
        };
        QCOMPARE(dits([&] { choix.bouton(1)->click(); }), "1");
        QCOMPARE(dits([&] { choix.bouton(1)->click(); }), "1");  // what is shown already
        QCOMPARE(dits([&] { choix.bouton(0)->toggle(); }), "0"); // by a reader
        QCOMPARE(dits([&] { choix.bouton(0)->click(); }), "0");
        QCOMPARE(dits([&] { choix.montrer(1); }), "");
    }

    void copierEncoreNeProlongeRien()
    {
        BoutonCopier bouton;
        bouton.setValeur("1");
        bouton.click();
        const auto *retour = bouton.findChild<QTimer *>();
        QCOMPARE(retour->intervalAsDuration(), 1500ms);
        while (retour->remainingTime() >= 1400)
            QTest::qSleep(1); // without a loop, in which a busy machine could let it end
        bouton.click();
        QVERIFY(retour->isActive() && retour->remainingTime() < 1400);
    }

    // A reader may choose what no hand can.
    void leSeparateurNeSeChoisitPas()
    {
        Choix choix;
        choix.ajouter("a", "a");
        choix.insertSeparator(1);
        choix.ajouter("b", "b");
        choix.showPopup();
        QSignalSpy choisi(&choix, &Choix::choisi);
        const auto prendre = [&](int rang) {
            choix.view()->selectionModel()->select(choix.model()->index(rang, 0), QItemSelectionModel::ClearAndSelect);
        };
        prendre(1);
        prendre(2);
        QTRY_COMPARE(choisi.count(), 1);
        QCOMPARE(choisi.at(0).at(0).toString(), "b");
    }

    void unLecteurDemandeAuDelaDeLaPage()
    {
        Defilement page;
        page.setWidget(new QLabel("a"));
        auto *lu = QAccessible::queryAccessibleInterface(&page);
        for (const int rang : {-1, lu->childCount(), 999})
            QVERIFY(!lu->child(rang));
        QVERIFY(lu->indexOfChild(QAccessible::queryAccessibleInterface(page.viewport())) >= 0);
    }

    // A click lower down opened it, and it has no place yet.
    void ceQuiPrendLeFocusVientEnVue()
    {
        Defilement page;
        auto *champ = new QLineEdit;
        QWidget *partie = Pile::enColonne({}, {Pile::blanc(900), champ});
        auto *bouton = new QPushButton("a");
        page.setWidget(Pile::enColonne({}, {bouton, partie, Pile::blanc(900)}));
        partie->hide();
        page.resize(300, 200);
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QTest::mouseClick(bouton, Qt::LeftButton);
        partie->show();
        champ->setFocus();
        QTRY_VERIFY(champ->visibleRegion().boundingRect() == champ->rect());
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // Its pop-up, like any list, table or tree of Qt's.
    void unLecteurDemandeUneCelluleAbsente()
    {
        Choix choix;
        auto *liste = QAccessible::queryAccessibleInterface(choix.view());
        const auto *cellules = liste->tableInterface();
        const auto estLa = [&](int ligne, int colonne) {
            auto *cellule = cellules->cellAt(ligne, colonne);
            return cellule->tableCellInterface()->rowIndex() == ligne && liste->indexOfChild(cellule) == ligne;
        };
        QVERIFY(!estLa(0, 0));
        choix.ajouter("a", "a");
        QVERIFY(estLa(0, 0) && !estLa(0, -1) && !estLa(1, 0));
    }
#endif

    // Closed by a reader while a question of its own holds the program up.
    void laFeuilleFermeeSousUneQuestion()
    {
        QWidget fenetre;
        QPointer<Feuille> feuille = new Feuille("Feuille", &fenetre);
        feuille->ouvrir();
        QTimer::singleShot(0, feuille, &QDialog::reject);
        QVERIFY(QMessageBox::question(feuille, "Feuille", "Fermer ?") != QMessageBox::Yes);
        QVERIFY(feuille && !feuille->isVisible());
        QTRY_VERIFY(!feuille);
    }

    // What was typed, pasted or dictated is not lost by one key.
    void echapQuitteDAbordLeChamp()
    {
        const auto coups = [](const char *propose, const char *tape, bool zone) {
            Feuille feuille("Feuille", nullptr);
            auto *ligne = new QLineEdit(propose, &feuille);
            auto *lignes = new ZoneDeTexte(2, &feuille);
            lignes->setPlainText(propose);
            QWidget *champ = zone ? static_cast<QWidget *>(lignes) : ligne;
            feuille.open();
            if (!QTest::qWaitForWindowActive(&feuille))
                return -1;
            champ->setFocus();
            QTest::keyClicks(champ, tape);
            int frappes = 0;
            for (; feuille.isVisible() && frappes < 3; ++frappes)
                QTest::keyClick(feuille.focusWidget(), Qt::Key_Escape);
            return frappes;
        };
        for (const bool zone : {false, true}) {
            QCOMPARE(coups("", "Ada", zone), 2);
            QCOMPARE(coups("2026-001", "", zone), 1);
            QCOMPARE(coups("2026-001", "b", zone), 2);
            QCOMPARE(coups("", "", zone), 1);
        }
    }

    // A piece of a line is pasted into another as it is.
    void leColleEstNettoye()
    {
        ZoneDeTexte zone(3);
        zone.nettoyerLeColle([](const QString &texte) { return texte.simplified(); });
        const auto coller = [&](const char *texte) {
            QApplication::clipboard()->setText(texte);
            zone.paste();
            return zone.toPlainText();
        };
        QCOMPARE(coller("  Ada"), "Ada");
        QCOMPARE(coller(" Exemple"), "Ada Exemple");
        QCOMPARE(coller(" et\n Bob"), "Ada Exempleet Bob");
        QTest::keyClicks(&zone, "  ");
        QCOMPARE(zone.toPlainText(), "Ada Exempleet Bob  ");
    }

    // As typed, so handed over, once; what is refused stays, with the reason, until another value is shown.
    void laFicheGardeCeQuiFutTape_data()
    {
        QTest::addColumn<int>("lignes");
        QTest::newRow("une ligne") << 1;
        QTest::newRow("plusieurs lignes") << 3;
    }
    void laFicheGardeCeQuiFutTape()
    {
        QFETCH(const int, lignes);
        QWidget page;
        auto *fiche = new ChampDeFiche("SIRET", lignes, &page);
        auto *autre = new QLineEdit(&page);
        fiche->montrer("1");
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QStringList rendus;
        connect(fiche, &ChampDeFiche::saisi, fiche, [&](const QString &texte) {
            rendus.append(texte);
            fiche->objecter(texte == "12" ? "faux" : "");
        });
        QWidget *champ = fiche->focusProxy();
        const auto alerte = [&] { return champ->accessibleDescription(); };
        fiche->setFocus();
        QTest::keyClick(champ, Qt::Key_End);
        QTest::keyClick(champ, Qt::Key_2);
        fiche->montrer("1"); // something else has changed
        QCOMPARE(fiche->texte(), "12");
        autre->setFocus();
        QCOMPARE(rendus, QStringList{"12"});
        QVERIFY(fiche->estRefuse());
        fiche->montrer("1");
        QCOMPARE(fiche->texte() + alerte(), "12faux");
        fiche->setFocus();
        autre->setFocus(); // nothing new
        QCOMPARE(rendus.size(), 1);

        fiche->objecter("faux");
        fiche->montrer("3"); // undone
        QCOMPARE(fiche->texte() + alerte(), "3");
        fiche->setFocus(); // its screen's own undo answers, until there is typing
        const auto annule = [&] {
            QKeyEvent touche(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
            touche.ignore();
            QApplication::sendEvent(champ, &touche);
            return touche.isAccepted();
        };
        QVERIFY(!annule());
        QTest::keyClick(champ, Qt::Key_End);
        QTest::keyClick(champ, Qt::Key_4);
        QVERIFY(annule());
        page.hide(); // as a sheet that closes
        QCOMPARE(rendus.value(1) + alerte(), "34");
        lignes == 1 ? fiche->findChild<QLineEdit *>()->setText("5") // by a reader
                    : fiche->findChild<ZoneDeTexte *>()->setPlainText("5");
        QCOMPARE(rendus.value(2), "5");
        QCOMPARE(rendus.size(), 3);
    }

    void lAttenteEstBornee()
    {
        QWidget fenetre;
        fenetre.show();
        QTimer pouls; // the window lives on
        QSignalSpy battu(&pouls, &QTimer::timeout);
        pouls.start(10ms);
        const auto porte = std::make_shared<QSemaphore>();
        bool dit = false;
        bool ditAvant = false; // to a screen reader
        QTimer guet;
        connect(&guet, &QTimer::timeout, &fenetre, [&] {
            auto *devant = QApplication::activeModalWidget();
            const bool montre = devant && devant->isVisible() && !devant->testAttribute(Qt::WA_DontShowOnScreen);
            dit = dit || (montre && devant->findChild<QLabel *>()->text() == u"Un instant…");
            ditAvant = ditAvant
                       || (devant && !montre
                           && !QAccessible::queryAccessibleInterface(devant)->text(QAccessible::Name).isEmpty());
        });
        guet.start(20ms);
        connect(&guet, &QTimer::timeout, &fenetre, [&] {
            if (dit && battu.count() > 10)
                porte->release();
        });
        QVERIFY(Attente::auPlus(1min, &fenetre, "Un instant…", [porte] { porte->acquire(); }));
        QVERIFY(dit && !ditAvant);
        guet.stop();
        const auto fermee = std::make_shared<QSemaphore>();
        QVERIFY(!Attente::auPlus(1ms, &fenetre, "Un instant…", [fermee] { fermee->acquire(); }));
        fermee->release();
        QVERIFY_THROWS_EXCEPTION(
            std::runtime_error, Attente::jusquAuBout(&fenetre, "Un instant…", [] { throw std::runtime_error("non"); }));
        QVERIFY(!QApplication::activeModalWidget());
    }
};

QTEST_MAIN(TestControles)
#include "tst_controles.moc"
