#include "tests/Banc.h"
#include "ui/livres/ModeleLivres.h"
#include "ui/tarifs/TextesTarifs.h"

#include <QAbstractItemModelTester>
#include <QTest>

// What the two reference screens say.
class TestTarifs : public QObject
{
    Q_OBJECT

private slots:
    void famillesDansLOrdre();
    void lignesDesLivres();
};

void TestTarifs::famillesDansLOrdre()
{
    TarifsColissimo tarifs = desTarifs(QStringLiteral("2026-01-01"), Centimes{549});
    std::swap(tarifs.grilles[0], tarifs.grilles[1]);
    GrilleColissimo ailleurs = tarifs.grilles[0];
    ailleurs.famille = QStringLiteral("lune");
    tarifs.grilles.append(ailleurs);
    GrilleColissimo sansPays = tarifs.grilles[0];
    sansPays.nom = sansPays.nomCourt = QStringLiteral("Royaume-Uni");
    tarifs.grilles.append(sansPays);

    const auto familles = TextesTarifs::familles(tarifs);
    QStringList titres;
    for (const auto &famille : familles)
        titres.append(famille.titre);
    QCOMPARE(titres, (QStringList{QStringLiteral("France métropolitaine, Monaco, Andorre"), QStringLiteral("Europe")}));
    QCOMPARE(familles[1].grilles.size(), 2);
    QCOMPARE(familles[1].grilles[0].pays, QStringLiteral("ici et là"));
    QCOMPARE(familles[1].grilles[1].pays, QString());
    QCOMPARE(familles[0].grilles[0].paliers[2].poids, QStringLiteral("jusqu’à 2 kg"));
    QCOMPARE(familles[0].grilles[0].paliers[0].prix.left(4), QStringLiteral("5,49"));
}

void TestTarifs::lignesDesLivres()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    ModeleLivres modele(*catalogue);
    const QAbstractItemModelTester verification(&modele, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto texte = [&](int ligne, ModeleLivres::Colonne colonne) {
        return modele.index(ligne, colonne).data().toString();
    };
    QCOMPARE(modele.rowCount(), 4);
    QCOMPARE(texte(1, ModeleLivres::poids), QStringLiteral("Poids à peser"));
    QCOMPARE(texte(2, ModeleLivres::vendeur), QStringLiteral("Mireva"));
    QCOMPARE(texte(3, ModeleLivres::etat), QStringLiteral("Épuisé"));
    Livre livre = banc.livres[0];
    livre.prix = Centimes{1234};
    catalogue->modifier(livre);
    QCOMPARE(texte(0, ModeleLivres::prix).left(5), QStringLiteral("12,34"));
}

QTEST_GUILESS_MAIN(TestTarifs)
#include "tst_tarifs.moc"
