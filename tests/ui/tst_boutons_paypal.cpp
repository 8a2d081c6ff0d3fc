#include "tests/BancLivres.h"

#include <QApplication>
#include <QClipboard>

using namespace Quillet;

// PayPal's buttons on the books' screen, for the schedule in force and the next.
class TestBoutonsPaypal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    // The schedule's choice belongs to the head, whenever a next schedule comes.
    void ordreDuClavier()
    {
        BancLivres cas;
        cas.donnees.tarifs.append(desTarifs("2026-04-01", Centimes{600}));
        cas.demarrer();
        cas.fenetre()->contenu()->montrer(Rubrique::livres);
        QVERIFY(cas.cliquer("À partir du 1er avril 2026"));
        auto *segment = Ecran::controle(cas.fenetre(), "À partir du 1er avril 2026");
        segment->setFocus();
        QTest::keyClick(segment, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), "Chercher un livre");
    }

    void boutonsPaypal()
    {
        const BancLivres cas;
        cas.champ(champDuPrix)->setFocus();
        QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, "16"));
        QVERIFY(cas.cliquer("Reporter, Suisse")); // the price read there, not the one that follows
        QCOMPARE(cas.enregistre(0).prixPaypal->value(vers("suisse")), Centimes{2049});
        const auto lu = [&cas](const char *tete) { return BancEcran::luAuTableau(cas.fenetre(), "France", tete); };
        QCOMPARE(lu("Actuel"), "Actuel : 20,00 €");
        QVERIFY2(lu("État").startsWith("France, À reporter"), qPrintable(lu("État")));
        QVERIFY(cas.cliquer("Copier 20,49\u00A0€, France"));
        QCOMPARE(QApplication::clipboard()->text(), "21,49"); // what the edit makes of it
        QVERIFY(cas.cliquer("Annuler : prix de « Livre 1 »"));
        QCOMPARE(cas.texte("+0,49"), "+0,49 €");
        QCOMPARE(cas.texte("Pas de grille"), "Pas de grille Colissimo"); // the Moon

        auto *garder = Ecran::controle(cas.fenetre(), "Garder, France");
        garder->setFocus();
        QTest::keyClick(garder, Qt::Key_Space);
        QCOMPARE(cas.enregistre(0).prixEcartes, PrixParDestination({{vers("france"), Centimes{2049}}}));
        // The keyboard is led to the next price to report, and on to the next book after the last.
        const QString focus = QApplication::focusWidget()->accessibleName();
        QVERIFY2(focus.startsWith("Copier 20,49\u00A0€, Union européenne, À reporter"), qPrintable(focus));
        auto *tout = Ecran::controle(cas.fenetre(), "Reporter, Union européenne");
        tout->setFocus();
        QTest::keyClick(tout, Qt::Key_Space);
        const PrixParDestination reportes{{vers("france"), Centimes{2000}}, // kept: never undone by the rest
                                          {vers("suisse"), Centimes{2049}},
                                          {vers("ue"), Centimes{2049}}};
        QCOMPARE(cas.enregistre(0).prixPaypal, reportes);
        QCOMPARE(cas.texte("Rien"), "Rien à reporter");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(cas.courant(), "Livre 4");
        QVERIFY(cas.cliquer("Tout reporter"));
        QCOMPARE(cas.enregistre(3).prixPaypal->size(), 3);
        cas.choisir(0);
        QVERIFY(cas.cliquer("Reporter, France")); // a kept price may still be reported
        QCOMPARE(cas.enregistre(0).prixPaypal->value(vers("france")), Centimes{2049});
        QVERIFY(cas.enregistre(0).prixEcartes->isEmpty());
    }
};

QTEST_MAIN(TestBoutonsPaypal)
#include "tst_boutons_paypal.moc"
