#include "model/Historique.h"
#include "tests/Banc.h"
#include "tests/DisquePlein.h"

#include <QSignalSpy>
#include <QTest>

using namespace Quillet;

// What sellers change of their books, and the way back from it.
class TestEditionLivres : public QObject
{
    Q_OBJECT

private slots:
    // Each step back and forth stands in memory and in the file; the return to shipped values too.
    void annulerEtRetablir()
    {
        const Banc banc;
        const auto catalogue = banc.charger();
        Historique historique(*catalogue);
        historique.modifier(catalogue->donnees().livres[0], "rien");
        QVERIFY(!QFile::exists(banc.cheminUtilisateur("livres-modifies.json")));
        QList<QList<Livre>> etapes{catalogue->donnees().livres};
        const auto boutons = [&] {
            return catalogue->donnees().boutons(catalogue->donnees().livres[0], banc.tarifs[0]);
        };
        Livre livre = catalogue->donnees().livres[0];
        livre.prix = Centimes{1600};
        historique.modifier(livre, "prix");
        etapes.append(catalogue->donnees().livres);
        historique.garder(livre, boutons()[0], "gardé");
        etapes.append(catalogue->donnees().livres);
        historique.reporter(livre, PrixBouton::aReporter(boutons()), "reportés");
        etapes.append(catalogue->donnees().livres);
        QSignalSpy change(catalogue.get(), &Catalogue::change);
        historique.revenirAuxValeursLivrees("retour");
        QCOMPARE(change.count(), 1);
        etapes.append(catalogue->donnees().livres);
        QCOMPARE(etapes.last(), etapes.first());

        const QStringList noms{"prix", "gardé", "reportés", "retour"};
        const auto verifier = [&](qsizetype etape) {
            QCOMPARE(catalogue->donnees().livres, etapes[etape]);
            QCOMPARE(banc.charger()->donnees().livres, etapes[etape]);
            QCOMPARE(historique.aAnnuler(), etape > 0 ? noms[etape - 1] : QString());
            QCOMPARE(historique.aRetablir(), etape < noms.size() ? noms[etape] : QString());
        };
        for (int fois = 0; fois < 2; ++fois) {
            verifier(4);
            for (qsizetype etape = 3; etape >= 0; --etape) {
                QCOMPARE(historique.annuler(), 1);
                verifier(etape);
            }
            for (qsizetype etape = 1; etape <= 4; ++etape) {
                QCOMPARE(historique.retablir(), 1);
                verifier(etape);
            }
        }
        historique.annuler();
        livre.prix = Centimes{1700};
        historique.modifier(livre, "autre");
        QVERIFY(historique.aRetablir().isEmpty());
    }

    void echecSansTrace()
    {
        const Banc banc;
        const auto catalogue = banc.charger();
        Historique historique(*catalogue);
        Livre livre = catalogue->donnees().livres[1];
        livre.poids = Grammes{410};
        {
            const DisquePlein plein;
            QVERIFY_THROWS_EXCEPTION(ErreurStockage, historique.modifier(livre, "poids"));
        }
        QVERIFY(historique.aAnnuler().isEmpty());
        historique.modifier(livre, "poids");
        const QList<Livre> apres = catalogue->donnees().livres;
        {
            const DisquePlein plein;
            QVERIFY_THROWS_EXCEPTION(ErreurStockage, historique.annuler());
        }
        QCOMPARE(catalogue->donnees().livres, apres);
        QCOMPARE(banc.charger()->donnees().livres, apres);
        QCOMPARE(historique.aAnnuler(), "poids"); // to be tried again
        historique.annuler();
        QCOMPARE(catalogue->donnees().livres, banc.livres);
    }
};

QTEST_GUILESS_MAIN(TestEditionLivres)
#include "tst_edition_livres.moc"
