#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "watch/PorteeTarifs.h"

#include <array>

using namespace Quillet;

namespace {

// "f 250:545 500:759, u 250:545": the grids, and the price of each tier.
TarifsColissimo tarifs(const QString &texte)
{
    TarifsColissimo tarifs;
    for (const QString &grille : texte.split(", ")) {
        tarifs.grilles.append({.code = CodeGrille(grille.section(u' ', 0, 0)), .nomCourt = grille.section(u' ', 0, 0)});
        for (const QString &palier : grille.section(u' ', 1).split(u' '))
            tarifs.grilles.last().paliers.append(
                {Grammes{palier.section(u':', 0, 0).toLongLong()}, Centimes{palier.section(u':', 1).toLongLong()}});
    }
    return tarifs;
}

QString enTexte(const QList<EcartTarif> &ecarts)
{
    const auto prix = [](const std::optional<Centimes> &montant) {
        return montant ? QString::number(montant->valeur()) : QStringLiteral("–");
    };
    QStringList lignes;
    for (const EcartTarif &ecart : ecarts)
        lignes.append(ecart.id() + u' ' + prix(ecart.avant) + u'>' + prix(ecart.apres));
    return lignes.join(", ");
}

} // namespace

class TestEcarts : public QObject
{
    Q_OBJECT

private slots:
    void ecarts()
    {
        for (const auto &[nom, de, a, attendus] : Rangees<const char *, const char *, const char *>{
                 {"aucun", "f 250:545 500:759", "f 250:545 500:759", ""},
                 {"prix changé", "f 250:545 500:759", "f 250:560 500:759", "f-250 545>560"},
                 {"palier nouveau, hors de son rang", "u 250:545 2000:1119", "u 15000:3055 250:545 2000:1",
                  "u-2000 1119>1, u-15000 –>3055"},
                 {"palier disparu", "f 250:545 500:759", "f 250:545", "f-500 759>–"},
                 {"grille nouvelle", "u 250:545", "f 250:545 500:759, u 250:545", "f-250 –>545, f-500 –>759"},
                 {"grille disparue", "f 250:545, u 250:545", "u 250:545", ""},
                 {"grilles dans l’ordre des nouvelles", "f 250:545, u 250:545", "u 250:2, f 250:3",
                  "u-250 545>2, f-250 545>3"},
                 {"poids en double : le premier", "f 250:545 250:1", "f 250:2 250:545", "f-250 545>2"},
             }) {
            const Rangee rangee(nom);
            const TarifsColissimo nouveaux = tarifs(a);
            const auto ecarts = EcartTarif::ecarts(tarifs(de), nouveaux);
            QCOMPARE(enTexte(ecarts), attendus);
            for (const EcartTarif &ecart : ecarts)
                QCOMPARE(ecart.grille, *nouveaux.grille(ecart.grille.code));
        }
    }

    void aVerifier()
    {
        for (const auto &[nom, de, a, attendus] : Rangees<const char *, const char *, const char *>{
                 {"un tiers de plus, puis davantage", "f 250:600 500:600", "f 250:800 500:801", "f-500"},
                 {"un tiers de moins, puis davantage", "f 250:600 500:600", "f 250:400 500:399", "f-500"},
                 {"gratuit", "f 250:545", "f 250:0", "f-250"},
                 {"n’est plus gratuit", "f 250:0", "f 250:1", "f-250"},
                 {"palier disparu", "f 250:545 500:759", "f 250:545", "f-500"},
                 {"palier nouveau, à sa place", "f 250:545 2000:1119", "f 250:545 500:759 2000:1119 5000:1119", ""},
                 {"palier nouveau, moins cher qu’un plus léger", "f 250:545", "f 250:545 500:544", "f-500"},
                 {"palier nouveau, plus cher qu’un plus lourd", "f 500:759", "f 250:760 500:759", "f-250"},
                 {"palier nouveau, gratuit", "f 500:759", "f 250:0 500:759", "f-250"},
             }) {
            const Rangee rangee(nom);
            QStringList obtenus;
            for (const EcartTarif &ecart : EcartTarif::ecarts(tarifs(de), tarifs(a)))
                if (ecart.aVerifier())
                    obtenus.append(ecart.id());
            QCOMPARE(obtenus.join(u' '), attendus);
        }
    }

    // What changes of what counts from today on, wherever the day of effect falls among those known.
    void portee()
    {
        Banc banc;
        banc.tarifs = {tarifs("f 250:500, u 250:500"), tarifs("f 250:600, u 250:600"), tarifs("f 250:700, u 250:700")};
        const std::array jours{"2025-01-01", "2026-01-01", "2026-04-01"};
        for (std::size_t i = 0; i < jours.size(); ++i)
            banc.tarifs[qsizetype(i)].validite = Jour(QString::fromLatin1(jours[i]));
        for (const auto &[jour, ecarts, grilles, correction, sansEffet, desAujourdhui] :
             Rangees<const char *, const char *, bool, bool, bool>{
                 {"2024-12-31", "", "", false, true, false},
                 {"2025-01-01", "", "", false, true, false},
                 {"2026-01-01", "f-250 600>601", "u", true, false, true},
                 {"2026-02-31", "f-250 600>601", "u", false, false, true},
                 {"2026-03-02", "f-250 600>601", "u", false, false, true},
                 {"2026-03-03", "f-250 600>601", "u", false, false, false},
                 {"2026-04-01", "f-250 700>601", "u", true, false, false},
             }) {
            const Rangee rangee(jour);
            TarifsColissimo lus = tarifs("f 250:601");
            lus.validite = Jour(QString::fromLatin1(jour));
            const auto portee = PorteeTarifs::de(banc.donnees(), lus, jourDuBanc);
            QCOMPARE(enTexte(portee.ecarts), ecarts);
            QCOMPARE(portee.grillesDisparues.join(u' '), grilles);
            QCOMPARE((std::array{portee.correction, portee.sansEffet, portee.desAujourdhui}),
                     (std::array{correction, sansEffet, desAujourdhui}));
        }
        // Nothing else is in force yet.
        banc.tarifs = {tarifs("f 250:500")};
        banc.tarifs[0].validite = QDate(2027, 1, 1);
        QVERIFY(!PorteeTarifs::de(banc.donnees(), desTarifs("2026-01-01", Centimes{500}), jourDuBanc).sansEffet);
    }

    // Even when the schedule of that very day is known already.
    void duReleve()
    {
        Banc banc;
        banc.tarifs = {desTarifs("2026-01-01", Centimes{500}), desTarifs("2028-02-29", Centimes{600}),
                       desTarifs("2028-03-01", Centimes{700})};
        const auto avant = [&](const char *jour) {
            const auto ecarts = EcartTarif::duReleve(banc.donnees(), desTarifs(jour, Centimes{800}));
            return ecarts.first().avant.value_or(Centimes{});
        };
        QCOMPARE(avant("2028-02-29"), Centimes{500});
        QCOMPARE(avant("2028-03-01"), Centimes{600});
        QCOMPARE(avant("2028-02-31"), Centimes{600}); // no day: compared as a text
    }
};

QTEST_GUILESS_MAIN(TestEcarts)
#include "tst_ecarts.moc"
