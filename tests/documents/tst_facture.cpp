#include "documents/AdressePostale.h"
#include "documents/ArticleDouane.h"
#include "documents/Facture.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

using namespace Quillet;

class TestFacture : public QObject
{
    Q_OBJECT

private slots:
    void factureDeLaCommande()
    {
        const Banc banc;
        BonDeCommande bon;
        bon.ajuster(banc.livres[0], 2);
        bon.poidsPese = Grammes{450};
        bon.ajuster(banc.livres[1], 1);
        bon.codeDestination = vers("suisse");
        const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
        const auto facture =
            Facture::de(calcul, banc.donnees().reglages, "2026-004", jourDuBanc, "Ada Exemple\nExempleville");
        QVERIFY(facture);
        QCOMPARE(*facture, (Facture{.numero = "2026-004",
                                    .date = jourDuBanc,
                                    .vendeur = *banc.reglages.identite(Vendeur::davrel),
                                    .acheteur = "Ada Exemple\nExempleville",
                                    .lignes = {{1, "Livre 1", banc.livres[0].isbn, 2, Centimes{1500}},
                                               {2, "Livre 2", banc.livres[1].isbn, 1, Centimes{2200}}},
                                    .libelleEnvoi = "Envoi Colissimo · Colissimo shipping – Switzerland",
                                    .envoi = Centimes{759},
                                    .codeSH = "490199"}));
        QCOMPARE(facture->sousTotal(), Centimes{5200});
        QCOMPARE(facture->total(), Centimes{5959});
        QCOMPARE(articlesDouane(calcul, "490199").value(0),
                 (ArticleDouane{1, "Printed book – Livre 1", 2, Grammes{200}, Centimes{1500}, "490199", "France"}));
    }

    void pasDeFacture()
    {
        Banc banc;
        const auto existe = [&](const BonDeCommande &bon) {
            return Facture::de(Calcul::de(banc.donnees(), bon, jourDuBanc), banc.donnees().reglages, {}, jourDuBanc, {})
                .has_value();
        };
        BonDeCommande bon;
        QVERIFY(!existe(bon)); // no book
        bon.ajuster(banc.livres[0], 1);
        QVERIFY(existe(bon));
        bon.poidsPese = Grammes{2001}; // no tier
        QVERIFY(!existe(bon));
        BonDeCommande sansIdentite{.vendeur = Vendeur::mireva};
        sansIdentite.ajuster(banc.livres[2], 1);
        QVERIFY(!existe(sansIdentite));
    }

    void adresseCollee()
    {
        for (const auto &[collee, nette] : Rangees<const char *>{
                 {"Ada Exemple", "Ada Exemple"},
                 {"\n  Ada Exemple\t\r\n\r\n\u00a0\n\t1 rue de l’Exemple\u2028France\n",
                  "Ada Exemple\n1 rue de l’Exemple\nFrance"},
                 {" \n ", ""},
                 {" 1 rue de l’Exemple\r\n", "1 rue de l’Exemple\n"}, // line by line
             }) {
            const Rangee rangee(collee);
            QCOMPARE(AdressePostale::sansVides(collee), nette);
        }
    }

    void nomDeFichier()
    {
        for (const auto &[ligne, vendeur, nom] : Rangees<QString, QString>{
                 {"ordinaire", "Éditions Davrel", "Éditions Davrel"},
                 {"chemin", "../a\\b/c", "..-a-b-c"},
                 {"interdits ailleurs", "a:b*c?d\"e<f>g|h", "a-b-c-d-e-f-g-h"},
                 {"commande", "a\nb", "a-b"},
                 {"long", QString(300, QChar(0x00E9)), QString(109, QChar(0x00E9))},
                 {"long, en paires", QStringLiteral("📚").repeated(100), QStringLiteral("📚").repeated(54)},
             }) {
            const Rangee rangee(ligne);
            const Facture facture{.numero = "2026-001", .vendeur = {.nom = vendeur}};
            QCOMPARE(facture.nomDeFichier(), QStringLiteral("Facture 2026-001 – ") + nom + QStringLiteral(".pdf"));
        }
    }
};

QTEST_GUILESS_MAIN(TestFacture)
#include "tst_facture.moc"
