#include "tests/Banc.h"
#include "ui/QuilletApp.h"
#include "ui/tarifs/TextesTarifs.h"
#include "ui/tarifs/VueTarifs.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

// What the tariffs' screen says, and when it says something else.
class TestTarifs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void famillesDansLOrdre();
    void suitLesGrillesEnVigueur();
};

namespace {

bool montre(const QWidget &vue, const QString &texte)
{
    const auto libelles = vue.findChildren<QLabel *>();
    return std::ranges::any_of(
        libelles, [&](const QLabel *libelle) { return libelle->isVisible() && lisible(libelle->text()) == texte; });
}

} // namespace

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

void TestTarifs::suitLesGrillesEnVigueur()
{
    const Banc banc;
    const auto catalogue = banc.charger();
    VueTarifs vue(*catalogue, [] { return QDate(2026, 3, 2); });
    vue.resize(800, 300);
    vue.show();
    auto *page = vue.findChild<QScrollArea *>();
    QVERIFY(montre(vue, QStringLiteral("5,49 €")));
    QVERIFY(montre(vue, QStringLiteral("en vigueur au 1er janvier 2026")));

    QTest::keyClick(page, Qt::Key_End);
    const int bas = page->verticalScrollBar()->value();
    QVERIFY(bas > 0);
    Livre livre = banc.livres[0];
    livre.prix = Centimes{1234};
    catalogue->modifier(livre);
    catalogue->enregistrer(desTarifs(QStringLiteral("2026-03-03"), Centimes{888}));
    QVERIFY(montre(vue, QStringLiteral("5,49 €")));
    QCOMPARE(page->verticalScrollBar()->value(), bas);

    catalogue->enregistrer(desTarifs(QStringLiteral("2026-03-02"), Centimes{777}));
    QTRY_VERIFY(montre(vue, QStringLiteral("7,77 €")));
    QVERIFY(!montre(vue, QStringLiteral("5,49 €")));
    QVERIFY(montre(vue, QStringLiteral("en vigueur au 2 mars 2026")));
}

QTEST_MAIN(TestTarifs)
#include "tst_tarifs.moc"
