#include "model/Calcul.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

using namespace Quillet;

class TestCalcul : public QObject
{
    Q_OBJECT

private slots:
    void paliers()
    {
        const auto grilles = desTarifs("2026-01-01", Centimes{549}).grilles;
        for (const auto &[nom, poids, jusqua] : Rangees<qint64, qint64>{
                 // 0: none
                 {"nul", 0, 250},
                 {"sur la borne", 250, 250},
                 {"un gramme de plus", 251, 500},
                 {"dernière borne", 2000, 2000},
                 {"au-delà", 2001, 0},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(grilles[0].palier(Grammes{poids}).value_or(Palier{}).jusqua, Grammes{jusqua});
        }
        QVERIFY(!GrilleColissimo{}.palier(Grammes{}));
    }

    // Half a cent goes up, whatever rate it comes from.
    void fraisPaypal()
    {
        for (const auto &[nom, montant, frais] :
             Rangees<qint64, qint64>{{"demi-centime", 5000, 36}, {"moins d’un demi-centime", 4999, 35}}) {
            const Rangee rangee(nom);
            const FraisPaypal deBase{.taux = Taux{1}, .fixe = Centimes{35}};
            QCOMPARE(deBase.frais(Centimes{montant}, RegionPaypal::autres), Centimes{frais});
            const FraisPaypal enPlus{.fixe = Centimes{35}, .supplements = {{RegionPaypal::royaumeUni, Taux{1}}}};
            QCOMPARE(enPlus.frais(Centimes{montant}, RegionPaypal::royaumeUni), Centimes{frais});
            QCOMPARE(enPlus.frais(Centimes{montant}, RegionPaypal::eee), Centimes{35});
        }
    }

    void pays()
    {
        for (const auto &[nom, pays] : Rangees<const char *>{
                 {"OM1 : Guadeloupe, Guyane", "Guadeloupe, Guyane"},
                 {"OM1", ""},
                 {"OM1 : OM1", ""},
                 {"Guadeloupe", "Guadeloupe"},
             }) {
            const Rangee rangee(nom);
            const GrilleColissimo grille{.nomCourt = "OM1", .nom = QString::fromUtf8(nom)};
            QCOMPARE(grille.pays().value_or(QString()), pays);
        }
    }

    void commandeEntiere()
    {
        const Banc banc;
        BonDeCommande bon;
        bon.ajuster(banc.livres[0], 2);
        bon.ajuster(banc.livres[2], 5); // the other seller's
        bon.ajuster(banc.livres[3], 1); // sold out
        bon.codeDestination = vers("suisse");
        const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
        QCOMPARE(calcul.lignes, (QList<Calcul::Ligne>{{banc.livres[0], 2}}));
        QCOMPARE(calcul.sousTotal, Centimes{3000});
        QCOMPARE(calcul.poidsLivres, Grammes{400});
        QCOMPARE(calcul.poidsCalcule, Grammes{440});
        QCOMPARE(calcul.poidsRetenu, Grammes{440});
        QCOMPARE(calcul.regionPaypal, RegionPaypal::autres);
        QCOMPARE(calcul.envoi, Centimes{759});
        QCOMPARE(calcul.total, Centimes{3759});
        QCOMPARE(calcul.fraisPaypal, Centimes{(3759 * 489 + 5000) / 10000 + 35});
        QCOMPARE(calcul.reste, calcul.sousTotal - *calcul.fraisPaypal);
        QCOMPARE(calcul.vendeurs(), QSet{Vendeur::davrel});
        QCOMPARE(calcul.nombreDeLivres(), 2);
    }

    void sansPrix()
    {
        const Banc banc;
        for (const auto &[nom, livre, destination, pesee, chiffree] : Rangees<int, const char *, int, bool>{
                 // -1: none
                 {"pesé par le catalogue", 1, "france", -1, true},
                 {"livre jamais pesé", 2, "france", -1, false},
                 {"livre jamais pesé, pesée nulle", 2, "france", 0, false},
                 {"livre jamais pesé, colis pesé", 2, "france", 1, true},
                 {"livre de l’autre vendeur", 3, "france", -1, false},
                 {"destination inconnue", 1, "mars", -1, false},
                 {"destination sans grille", 1, "lune", -1, false},
             }) {
            const Rangee rangee(nom);
            BonDeCommande bon;
            bon.ajuster(banc.livres[livre - 1], 1);
            bon.codeDestination = vers(destination);
            if (pesee != -1)
                bon.poidsPese = Grammes{pesee};
            const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
            QCOMPARE(calcul.palier.has_value(), chiffree);
            QCOMPARE(calcul.reste.has_value(), chiffree);
            QCOMPARE(calcul.poidsPese.has_value(), pesee > 0);
            QCOMPARE(calcul.regionPaypal.has_value(), destination != QByteArray("mars"));
        }
    }

    void poidsDuColis()
    {
        Banc banc;
        banc.reglages.emballages.append({"Autre poids", Grammes{999}});
        banc.reglages.emballages.append({"Ballon", Grammes{-40}});
        const auto catalogue = banc.charger();
        for (const auto &[emballage, libre, attendu] : Rangees<int, int>{
                 {"Carton", 7, 180},
                 {"Autre poids", 7, 7}, // before the one of that name
                 {"Autre poids", -7, 0},
                 {"Ballon", 7, 0},
                 {"carton", 7, 0},
             }) {
            const Rangee rangee(emballage);
            const BonDeCommande bon{.emballage = QString::fromUtf8(emballage), .poidsEmballageLibre = Grammes{libre}};
            QCOMPARE(Calcul::de(catalogue->donnees(), bon, jourDuBanc).poidsEmballage, Grammes{attendu});
        }
    }

    void douane()
    {
        const Banc banc;
        for (const auto &[destination, horsUE, requise] : Rangees<bool, bool>{{"france", true, false},
                                                                              {"ue", false, false},
                                                                              {"ue", true, true},
                                                                              {"suisse", false, true},
                                                                              {"mars", true, false}}) {
            const Rangee rangee(destination);
            const BonDeCommande bon{.codeDestination = vers(destination), .horsUE = horsUE};
            QCOMPARE(Calcul::de(banc.donnees(), bon, jourDuBanc).douaneRequise, requise);
        }
    }

    // A weighed parcel counts alone, even when it is lighter than what was computed.
    void peseeSeule()
    {
        Banc banc;
        auto homonyme = banc.destinations[2];
        homonyme.code = vers("france");
        banc.destinations.append(homonyme); // the first of a code wins
        BonDeCommande bon;
        bon.ajuster(banc.livres[0], 5);
        bon.poidsPese = Grammes{1};
        const Calcul calcul = Calcul::de(banc.donnees(), bon, jourDuBanc);
        QCOMPARE(calcul.poidsCalcule, Grammes{1040});
        QCOMPARE(calcul.poidsRetenu, Grammes{1});
        QCOMPARE(calcul.envoi, Centimes{549});
        QCOMPARE(calcul.regionPaypal, RegionPaypal::eee);
    }

    void tarifsDuJour()
    {
        Banc banc;
        banc.tarifs.append(desTarifs("2026-07-01", Centimes{601}));
        BonDeCommande bon;
        bon.ajuster(banc.livres[0], 1);
        QCOMPARE(Calcul::de(banc.donnees(), bon, QDate(2026, 6, 30)).envoi, Centimes{549});
        QCOMPARE(Calcul::de(banc.donnees(), bon, QDate(2026, 7, 1)).envoi, Centimes{601});
    }
};

QTEST_GUILESS_MAIN(TestCalcul)
#include "tst_calcul.moc"
