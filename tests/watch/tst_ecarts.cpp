#include "tests/Banc.h"
#include "watch/EcartTarif.h"

#include <QTest>

class TestEcarts : public QObject
{
    Q_OBJECT

private slots:
    void ecarts_data();
    void ecarts();
};

namespace {

using Grilles = QList<GrilleColissimo>;

// The bench's two grids: 250 g, 500 g and 2 kg each.
TarifsColissimo tarifs()
{
    return desTarifs(QStringLiteral("2026-01-01"), Centimes{545});
}

QString enTexte(const QList<EcartTarif> &ecarts)
{
    const auto prix = [](const std::optional<Centimes> &montant) {
        return montant ? QString::number(montant->valeur()) : QStringLiteral("–");
    };
    QStringList lignes;
    for (const EcartTarif &ecart : ecarts)
        lignes.append(ecart.id() + u' ' + prix(ecart.avant) + u'>' + prix(ecart.apres));
    return lignes.join(QStringLiteral(", "));
}

} // namespace

void TestEcarts::ecarts_data()
{
    QTest::addColumn<TarifsColissimo>("de");
    QTest::addColumn<TarifsColissimo>("a");
    QTest::addColumn<QString>("attendus");
    const auto cas = [](const char *nom, void (*changer)(Grilles & de, Grilles & a), const char *attendus) {
        TarifsColissimo de = tarifs();
        TarifsColissimo a = tarifs();
        a.validite = QStringLiteral("2027-01-01");
        changer(de.grilles, a.grilles);
        QTest::newRow(nom) << de << a << QString::fromUtf8(attendus);
    };
    cas(
        "aucun", [](Grilles &, Grilles &) {}, "");
    cas(
        "prix changé", [](Grilles &, Grilles &a) { a[0].paliers[0].prix = Centimes{560}; },
        "france-domicile-250 545>560");
    cas(
        "palier nouveau, hors de son rang",
        [](Grilles &, Grilles &a) {
            a[1].paliers.prepend({Grammes{15000}, Centimes{3055}});
            a[1].paliers.last().prix = Centimes{1};
        },
        "ue-suisse-2000 1119>1, ue-suisse-15000 –>3055");
    cas(
        "palier disparu", [](Grilles &, Grilles &a) { a[0].paliers.removeAt(1); }, "france-domicile-500 759>–");
    cas(
        "grille nouvelle", [](Grilles &de, Grilles &) { de.removeFirst(); },
        "france-domicile-250 –>545, france-domicile-500 –>759, france-domicile-2000 –>1119");
    cas(
        "grille disparue", [](Grilles &, Grilles &a) { a.removeFirst(); }, "");
    cas(
        "grilles dans l’ordre des nouvelles",
        [](Grilles &, Grilles &a) {
            a.swapItemsAt(0, 1);
            a[0].paliers[2].prix = a[1].paliers[0].prix = Centimes{2};
        },
        "ue-suisse-2000 1119>2, france-domicile-250 545>2");
    cas(
        "poids en double : le premier",
        [](Grilles &de, Grilles &a) {
            de[0].paliers.append({Grammes{250}, Centimes{1}});
            a[0].paliers.prepend({Grammes{250}, Centimes{2}});
        },
        "france-domicile-250 545>2");
}

void TestEcarts::ecarts()
{
    QFETCH(TarifsColissimo, de);
    QFETCH(TarifsColissimo, a);
    QFETCH(QString, attendus);
    const auto ecarts = EcartTarif::ecarts(de, a);
    QCOMPARE(enTexte(ecarts), attendus);
    for (const EcartTarif &ecart : ecarts)
        QCOMPARE(ecart.grille, *a.grille(ecart.grille.code));
}

QTEST_GUILESS_MAIN(TestEcarts)
#include "tst_ecarts.moc"
