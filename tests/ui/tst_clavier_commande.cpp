#include "tests/BancCommande.h"
#include "tests/Rangees.h"
#include "ui/ContenuPrincipal.h"
#include "ui/commande/ParcoursDeLaGrille.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>

using namespace Quillet;

// An order without a pointer: the covers as one grid, the keys of the screen.
class TestClavierCommande : public BancCommande
{
    Q_OBJECT

private slots:
    void laMoletteNeChangeRien()
    {
        for (const char *nom : {"Emballage", "Envoi vers"}) {
            auto *choix = controle<QComboBox>(nom);
            QVERIFY(
                !(choix->focusPolicy() & ~Qt::StrongFocus)); // a wheel that takes the focus takes the next letters too
            const int avant = choix->currentIndex();
            QWheelEvent cran(QPointF(5, 5), choix->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(choix, &cran);
            QCOMPARE(choix->currentIndex(), avant);
        }
    }

    // Tab alone reaches every control in the order in which they are read, and Space adds a copy.
    void auClavier()
    {
        cliquer("Mireva");
        cliquer("davrel.example"); // the cards are new ones: they must keep their place
        fenetre()->contenu()->findChild<QListWidget *>()->setFocus();
        QStringList atteints;
        for (int i = 0; i < 50; ++i) {
            QTest::keyClick(fenetre()->focusWidget() ? fenetre()->focusWidget() : fenetre(), Qt::Key_Tab);
            QWidget *atteint = QApplication::focusWidget();
            const auto *bouton = qobject_cast<QAbstractButton *>(atteint);
            const QString nom =
                bouton && atteint->accessibleName().isEmpty() ? bouton->text() : atteint->accessibleName();
            QVERIFY2(!nom.isEmpty(), atteint->metaObject()->className());
            atteints.append(nom.section(u',', 0, 0));
            if (atteints.last() == u"Livre 1" && quantite(1) == 0)
                QTest::keyClick(atteint, Qt::Key_Space);
        }
        QCOMPARE(quantite(1), 1);
        qsizetype precedent = -1;
        for (const char *nom : {"Tout réinitialiser", "davrel.example", "Livre 1", "Emballage", "Colis pesé",
                                "Envoi vers", "Français", "Créer le lien dans PayPal", "Pays de livraison",
                                "Copier Prix", "Copier URL de redirection", "Copier le suivant", "Facture",
                                "E-mail en français", "Étape suivante : Créer le lien dans PayPal", "Rubriques"}) {
            const qsizetype rang = atteints.indexOf(nom, precedent + 1);
            QVERIFY2(rang > precedent,
                     qPrintable(QString::fromUtf8(nom) + QStringLiteral(" / ") + atteints.join(u'|')));
            precedent = rang;
        }
        QVERIFY(!atteints.contains("Livre 2")); // the covers are one stop
    }

    // Eleven covers, four in a row.
    void flechesDansLaGrille()
    {
        using ParcoursDeLaGrille::versOu;
        for (const auto &[nom, touche, rang, ou] : Rangees<Qt::Key, int, int>{
                 {"à droite, au rang suivant", Qt::Key_Right, 3, 4},
                 {"à droite, fin", Qt::Key_Right, 10, 10},
                 {"à gauche, au rang d’avant", Qt::Key_Left, 4, 3},
                 {"à gauche, début", Qt::Key_Left, 0, 0},
                 {"en bas", Qt::Key_Down, 2, 6},
                 {"en bas, sous un trou", Qt::Key_Down, 7, 10},
                 {"en bas, dernier rang", Qt::Key_Down, 9, 9},
                 {"en haut", Qt::Key_Up, 10, 6},
                 {"en haut, premier rang", Qt::Key_Up, 3, 3},
                 {"début", Qt::Key_Home, 6, 0},
                 {"fin", Qt::Key_End, 6, 10},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(versOu(touche, rang, 11, 4), std::optional(ou));
        }
        QVERIFY(!versOu(Qt::Key_A, 0, 11, 4));
    }

    void lettresEtChiffresDansLaGrille()
    {
        const QStringList titres{"Le Phare de sel", "L’Herbier des heures", "Les Marées", "Œuvres, été 1999"};
        for (const auto &[lettres, rang, trouve] : Rangees<int, int>{
                 {"l", 0, 1}, // a letter alone goes on
                 {"l", 2, 0},
                 {"ll", 0, 1},
                 {"les", 2, 2}, // more stays
                 {"her", 0, 1},
                 {"mare", 0, 2},
                 {"ÉT", 0, 3},
                 {"oeu", 0, 3},
                 {"are", 0, -1}, // not within a word
                 {"lm", 0, -1},
             }) {
            const Rangee rangee(lettres);
            QCOMPARE(ParcoursDeLaGrille::titre(titres, lettres, rang).value_or(-1), trouve);
        }
        for (const auto &[nom, commence, chiffre, nombre] : Rangees<std::optional<int>, int, int>{
                 {"4", {}, 4, 4}, {"12", 1, 2, 12}, {"05", 0, 5, 5}, {"123", 12, 3, 3}}) {
            const Rangee rangee(nom);
            QCOMPARE(ParcoursDeLaGrille::nombre(commence, chiffre), nombre);
        }
    }

    // One stop of the Tab key, where arrows and letters walk and digits count.
    void lesCouverturesAuClavier()
    {
        const auto ici = [] { return QApplication::focusWidget()->accessibleName().section(u',', 0, 0); };
        const auto presser = [](int touche, const QString &texte = {}) {
            QKeyEvent appui(QEvent::KeyPress, touche, Qt::NoModifier, texte);
            QApplication::sendEvent(QApplication::focusWidget(), &appui);
        };
        QCOMPARE(ici(), "Livre 1"); // from the opening on
        presser(Qt::Key_1, "1");
        presser(Qt::Key_2, "2");
        QCOMPARE(quantite(1), 12);
        QVERIFY(QApplication::focusWidget()->accessibleName().endsWith(", 12 dans la commande"));
        presser(Qt::Key_Minus, "-");
        QCOMPARE(quantite(1), 11);
        presser(Qt::Key_Right);
        QCOMPARE(ici(), "Livre 2");
        QVERIFY(fenetre()->testAttribute(Qt::WA_KeyboardFocusChange)); // its ring shows
        presser(Qt::Key_3, "3");                                       // another book, another number
        presser(Qt::Key_Plus, "+");
        presser(Qt::Key_Return);
        QCOMPARE(quantite(2), 5);
        presser(Qt::Key_Delete);
        QCOMPARE(quantite(2), 0);
        presser(Qt::Key_Right);
        QCOMPARE(ici(), "Livre 4"); // sold out
        presser(Qt::Key_3, "3");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(quantite(4), 0);
        presser(Qt::Key_L, "l");
        QCOMPARE(ici(), "Livre 5");
        presser(Qt::Key_I, "i");
        presser(Qt::Key_Plus, "+"); // chosen: what follows is another title
        presser(Qt::Key_L, "l");
        QCOMPARE(ici(), "Livre 1");
        presser(Qt::Key_End);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(ici(), "Emballage"); // from any cover as from the first
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(ici(), "Livre 5");
        cliquer("Mireva"); // the cards go, the focus with them
        QVERIFY(controle("Livre 3")->focusPolicy() & Qt::TabFocus);
    }

    // From part to part, and straight to what is done with every order.
    void touchesDeLaCommande()
    {
        const auto presser = [&](Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
            QTest::keyClick(fenetre(), touche, avec);
            return QApplication::focusWidget()->accessibleName().section(u',', 0, 0);
        };
        fenetre()->contenu()->findChild<QListWidget *>()->setFocus();
        QCOMPARE(presser(Qt::Key_F6), "Livre 1");
        QCOMPARE(presser(Qt::Key_F6), "Emballage");
        controle(colisPese)->setFocus();
        QCOMPARE(presser(Qt::Key_F6), "Étape suivante : Créer le lien dans PayPal");
        QCOMPARE(presser(Qt::Key_F6), "Rubriques");
        presser(Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(presser(Qt::Key_F6, Qt::ShiftModifier), colisPese.section(u',', 0, 0)); // where one was
        controle("davrel.example")->setFocus();                                          // in the books' part too
        QCOMPARE(presser(Qt::Key_F6), colisPese.section(u',', 0, 0));

        presser(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(!QApplication::activeModalWidget()); // nothing to reply yet
        cliquer("Livre 1");
        controle("Pays de livraison")->setFocus();
        presser(Qt::Key_E, Qt::ControlModifier);
        auto *reponse = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(reponse);
        reponse->reject();
        presser(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(bon().estVide());
        QVERIFY(controle(reinitialiser)->toolTip().endsWith("la destination restent")); // its own stays
        QVERIFY(controle("E-mail en français")->toolTip().endsWith(" (Ctrl+E)"));
        QCOMPARE(controle("E-mail en français")->accessibleDescription(), "Ctrl+E"); // not the tooltip, to be read too
    }
};

QTEST_MAIN(TestClavierCommande)
#include "tst_clavier_commande.moc"
