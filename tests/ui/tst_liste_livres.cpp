#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "ui/livres/ModeleLivres.h"

#include <QAbstractItemModelTester>

using namespace Quillet;

// What the books' screen lists and says, without a window.
class TestListeLivres : public QObject
{
    Q_OBJECT

private slots:
    void unVendeurApresLAutre()
    {
        const Banc banc; // the third of the four books is the other seller's
        const auto catalogue = banc.charger();
        ModeleLivres modele(*catalogue);
        const QAbstractItemModelTester verification(&modele, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QList<qint64> ids;
        QList<int> ouvrent;
        QList<int> ferment;
        for (int rang = 0; rang < modele.rowCount(); ++rang) {
            ids.append(modele.livre(rang).id);
            if (modele.ouvreUnGroupe(rang))
                ouvrent.append(rang);
            if (modele.fermeUnGroupe(rang))
                ferment.append(rang);
        }
        QCOMPARE(ids, (QList<qint64>{1, 2, 4, 3}));
        QCOMPARE(ouvrent, (QList{0, 3}));
        QCOMPARE(ferment, (QList{2, 3}));
        QCOMPARE(modele.nombre(Vendeur::davrel), 3);
    }

    void enMots()
    {
        const Banc banc;
        const auto catalogue = banc.charger();
        ModeleLivres modele(*catalogue);
        modele.setTarifs(banc.tarifs[0]);
        const QString debut = "Livre %1, Une autrice, 14 × 21 cm · 200 pages, vendu par ";
        const QStringList attendus{debut.arg(1) + QStringLiteral("Davrel, 200 g, 15,00 €, 3 prix à reporter"),
                                   debut.arg(2) + QStringLiteral("Davrel, Poids à peser, 22,00 €"),
                                   debut.arg(4) + QStringLiteral("Davrel, 150 g, 9,00 €, Épuisé, 3 prix à reporter"),
                                   debut.arg(3) + QStringLiteral("Mireva, 300 g, 18,00 €, 3 prix à reporter")};
        for (int rang = 0; rang < attendus.size(); ++rang)
            QCOMPARE(lisible(modele.index(rang).data(Qt::AccessibleTextRole).toString()), attendus[rang]);
    }

    void etats()
    {
        using Etat = FiltreLivres::Etat;
        const Banc banc;
        const auto catalogue = banc.charger();
        ModeleLivres modele(*catalogue);
        modele.setTarifs(banc.tarifs[0]);
        for (const auto &[retenus, etat, vendeur] : Rangees<Etat, std::optional<Vendeur>>{
                 {"1 2 4 3", Etat::tous, {}},
                 {"1 4 3", Etat::aReporter, {}},
                 {"2", Etat::aPeser, {}},
                 {"4", Etat::epuises, {}},
                 {"3", Etat::tous, Vendeur::mireva},
                 {"", Etat::aPeser, Vendeur::mireva},
             }) {
            modele.setFiltre({.recherche = {}, .vendeur = vendeur, .etat = etat});
            QStringList ids;
            for (int rang = 0; rang < modele.rowCount(); ++rang)
                ids.append(QString::number(modele.livre(rang).id));
            QCOMPARE(ids.join(u' '), retenus);
            QCOMPARE(modele.aReporter(), 9); // of all the books, whatever is shown
        }
    }
};

QTEST_GUILESS_MAIN(TestListeLivres)
#include "tst_liste_livres.moc"
