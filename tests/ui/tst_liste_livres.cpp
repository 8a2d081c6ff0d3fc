#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "textes/FiltreLivres.h"
#include "textes/TextesRetour.h"
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

    void recherche()
    {
        Livre livre = unLivre(1, Vendeur::davrel, Centimes{100}, Grammes{10});
        livre.titre = "Au cœur de l’été";
        for (const auto &[recherche, retenu] : Rangees<bool>{
                 {" ", true},
                 {"coeur l'ete", true},
                 {"ÉTÉ cœur", true},
                 {"autr", true},
                 {"9780000000", true},
                 {"978-0-00", true},
                 {"coeur hiver", false},
             }) {
            const FiltreLivres filtre{.recherche = FiltreLivres::mots(recherche), .vendeur = {}, .etat = {}};
            QVERIFY2(filtre.retient({livre, FiltreLivres::texteCherche(livre), 0}) == retenu, recherche);
        }
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

    void pertes()
    {
        QList<Livre> livres;
        for (int id = 1; id <= 11; ++id)
            livres.append(unLivre(id, Vendeur::davrel, Centimes{1000}, Grammes{100}));
        QList<Livre> actuels = livres;
        QVERIFY(TextesRetour::pertes(actuels, livres).isEmpty());
        actuels[0].poids.reset();
        actuels[0].disponible = false;
        actuels[0].prixPaypal = {{vers("france"), Centimes{1}}, {vers("ue"), Centimes{2}}};
        actuels[0].prixEcartes = {{vers("ue"), Centimes{2}}};
        for (Livre &livre : actuels)
            livre.prix = Centimes{1250};
        const QStringList pertes = TextesRetour::pertes(actuels, livres);
        QCOMPARE(lisible(pertes.first()), "Livre 1 : 12,50 €, Poids à peser, Épuisé, 2 prix reportés, 1 prix gardé");
        QCOMPARE(pertes.size(), 9);
        QCOMPARE(pertes.last(), "et 3 autres livres");
    }
};

QTEST_GUILESS_MAIN(TestListeLivres)
#include "tst_liste_livres.moc"
