#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "watch/EcartTarif.h"

using namespace Quillet;

namespace {

// "f 250:545 500:759, u 250:545": the grids, and the price of each tier.
TarifsColissimo tarifs(const QString &texte)
{
    TarifsColissimo tarifs;
    for (const QString &grille : texte.split(", ")) {
        tarifs.grilles.append({.code = CodeGrille(grille.section(u' ', 0, 0))});
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
