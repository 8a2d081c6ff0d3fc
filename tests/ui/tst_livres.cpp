#include "tests/Banc.h"
#include "ui/QuilletApp.h"
#include "ui/commande/ImagesCouvertures.h"
#include "ui/livres/ModeleLivres.h"
#include "ui/livres/VueLivres.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QListView>
#include <QTest>

#include <algorithm>

// The books' list: one seller after the other, said in words, worked by keys.
class TestLivres : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void unVendeurApresLAutre();
    void enMots_data();
    void enMots();
    void auClavier();
    void unLivreChange();
};

namespace {

struct Cas
{
    Banc banc;
    std::unique_ptr<Catalogue> catalogue = banc.charger();
    ImagesCouvertures images{QDir(banc.cheminUtilisateur())};
    VueLivres vue{*catalogue, images};
    QListView *liste = vue.findChild<QListView *>();

    Cas()
    {
        vue.resize(700, 300);
        vue.show();
    }
    [[nodiscard]] QString courant() const { return liste->currentIndex().data().toString(); }
    [[nodiscard]] QString enMots() const
    {
        return lisible(liste->currentIndex().data(Qt::AccessibleTextRole).toString());
    }
};

} // namespace

void TestLivres::unVendeurApresLAutre()
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

void TestLivres::enMots_data()
{
    QTest::addColumn<int>("rang");
    QTest::addColumn<QString>("attendu");
    const QString debut = QStringLiteral("Livre %1, Une autrice, 14 × 21 cm · 200 pages, vendu par ");
    QTest::newRow("pesé") << 0 << debut.arg(1) + QStringLiteral("Davrel, 200 g, 15,00 €");
    QTest::newRow("jamais pesé") << 1 << debut.arg(2) + QStringLiteral("Davrel, Poids à peser, 22,00 €");
    QTest::newRow("épuisé") << 2 << debut.arg(4) + QStringLiteral("Davrel, 150 g, 9,00 €, Épuisé");
    QTest::newRow("l’autre vendeur") << 3 << debut.arg(3) + QStringLiteral("Mireva, 300 g, 18,00 €");
}

void TestLivres::enMots()
{
    QFETCH(int, rang);
    QFETCH(QString, attendu);
    const Banc banc;
    const auto catalogue = banc.charger();
    const ModeleLivres modele(*catalogue);
    QCOMPARE(lisible(modele.index(rang).data(Qt::AccessibleTextRole).toString()), attendu);
}

void TestLivres::auClavier()
{
    const Cas cas;
    QVERIFY(QTest::qWaitForWindowActive(cas.vue.window()));
    cas.liste->setFocus(Qt::TabFocusReason);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 1"));
    QTest::keyClick(cas.liste, Qt::Key_End);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 3"));
    const QRect visible = cas.liste->visualRect(cas.liste->currentIndex());
    QVERIFY(cas.liste->viewport()->rect().contains(visible));
    QTest::keyClick(cas.liste, Qt::Key_Up);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 4"));
}

void TestLivres::unLivreChange()
{
    const Cas cas;
    const auto libelles = cas.vue.findChildren<QLabel *>();
    QVERIFY(std::ranges::any_of(libelles, [](auto *libelle) { return libelle->text() == QStringLiteral("4 livres"); }));
    cas.liste->setCurrentIndex(cas.liste->model()->index(1, 0));
    Livre livre = cas.banc.livres[1];
    livre.poids = Grammes{410};
    cas.catalogue->modifier({livre});
    QCOMPARE(cas.courant(), QStringLiteral("Livre 2"));
    QVERIFY2(cas.enMots().contains(QStringLiteral("410 g")), qPrintable(cas.enMots()));
}

QTEST_MAIN(TestLivres)
#include "tst_livres.moc"
