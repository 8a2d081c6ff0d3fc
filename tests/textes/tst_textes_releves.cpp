#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "textes/TextesReleves.h"

using namespace Quillet;

// What is said of a reading that is hard to believe, before it is kept.
class TestTextesReleves : public QObject
{
    Q_OBJECT

private slots:
    void reservesSurLesTarifs()
    {
        const char *sansEffet = "Enregistrer ces tarifs n’aura pas d’effet : ceux du 1er janvier 2026, plus récents, "
                                "sont déjà en vigueur.";
        for (const auto &[jour, effet, reserves] : Rangees<const char *, const char *>{
                 {"2025-12-31", "", sansEffet},
                 {"2026-01-01", "Pour les commandes d’aujourd’hui, 1 palier change.", ""},
                 {"2026-03-02", "Pour les commandes d’aujourd’hui, 1 palier change.", ""},
                 {"2026-03-03", "Rien ne change pour les commandes d’aujourd’hui.", ""},
                 {"2026-05-01", "Par rapport aux tarifs que vous aviez déjà pour ce jour, aucun palier ne change.", ""},
                 {"2026-04-31", "Rien ne change pour les commandes d’aujourd’hui.",
                  "Le jour d’effet lu sur la page, 2026-04-31, n’existe pas."},
                 {"2027-03-02", "Rien ne change pour les commandes d’aujourd’hui.", ""},
                 {"2027-03-03", "Rien ne change pour les commandes d’aujourd’hui.",
                  "Le jour d’effet est dans plus d’un an."},
             }) {
            const Rangee rangee(jour);
            Banc banc;
            TarifsColissimo lus = desTarifs(jour, Centimes{549});
            lus.grilles[0].paliers[0].prix = Centimes{560};
            banc.tarifs.append(lus);
            banc.tarifs.last().validite = QDate(2026, 5, 1);
            const auto portee = PorteeTarifs::de(banc.donnees(), lus, jourDuBanc);
            QCOMPARE(TextesReleves::effet(portee), effet);
            QCOMPARE(TextesReleves::reserves(portee, lus, banc.donnees(), jourDuBanc).join(u'|'), reserves);
        }
    }

    void prixAVerifier()
    {
        Banc banc;
        TarifsColissimo lus = desTarifs("2026-03-01", Centimes{549});
        lus.grilles[1].paliers[2].prix = Centimes{0};
        auto &paliers = lus.grilles[0].paliers;
        paliers[0].prix = Centimes{5490};
        paliers[2] = {Grammes{1000}, Centimes{99}};
        const auto phrases = [&] {
            return TextesReleves::prixAVerifier(PorteeTarifs::de(banc.donnees(), lus, jourDuBanc));
        };
        QCOMPARE(lisible(TextesReleves::enumeration(phrases())),
                 "• France, jusqu’à 250 g : 54,90 € au lieu de 5,49 €.\n"
                 "• France, jusqu’à 1 kg : nouveau palier à 0,99 €.\n"
                 "• France, jusqu’à 2 kg : ce palier n’est plus sur la page.\n"
                 "• UE et Suisse, jusqu’à 2 kg : 0,00 € au lieu de 11,19 €.");
        QCOMPARE(TextesReleves::resume(phrases()),
                 QStringList{"4 prix à vérifier : un triangle les marque dans la liste."});
        QCOMPARE(TextesReleves::resume(phrases().first(2)), phrases().first(2));
        QStringList douze;
        for (int i = 1; i <= 12; ++i)
            douze.append(QString::number(i));
        QCOMPARE(TextesReleves::enumeration(douze), "• 1\n• 2\n• 3\n• 4\n• 5\n• 6\n• 7\n• 8\n… et 4 autres.");
        QCOMPARE(TextesReleves::enumeration(douze.first(9)), "• 1\n• 2\n• 3\n• 4\n• 5\n• 6\n• 7\n• 8\n• 9");

        lus.grilles.removeLast();
        QCOMPARE(
            TextesReleves::reserves(PorteeTarifs::de(banc.donnees(), lus, jourDuBanc), lus, banc.donnees(), jourDuBanc),
            QStringList{"La grille « UE et Suisse » n’est plus sur la page."});
    }

    void fraisAVerifier()
    {
        const auto frais = [](qint64 taux, qint64 fixe, qint64 autres) {
            return FraisPaypal{
                .taux = Taux{taux}, .fixe = Centimes{fixe}, .supplements = {{RegionPaypal::autres, Taux{autres}}}};
        };
        for (const auto &[nom, lus, attendues] : Rangees<FraisPaypal, const char *>{
                 {"un peu plus", frais(349, 40, 199), ""},
                 {"taux démesuré", frais(9999, 35, 199), "Taux de base : 99,99 % au lieu de 2,90 %."},
                 {"part fixe démesurée", frais(290, 3500, 199), "Part fixe : 35,00 € au lieu de 0,35 €."},
                 {"plus rien", frais(0, 35, 0),
                  "Taux de base : 0,00 % au lieu de 2,90 %. Autre pays : 0,00 % au lieu de 1,99 %."},
             }) {
            const Rangee rangee(nom);
            const auto lignes = TextesReleves::frais(frais(290, 35, 199), lus);
            QCOMPARE(lisible(TextesReleves::fraisAVerifier(lignes).join(u' ')), attendues);
        }
    }
};

QTEST_GUILESS_MAIN(TestTextesReleves)
#include "tst_textes_releves.moc"
