#include "tests/Banc.h"
#include "ui/commande/Couverture.h"
#include "ui/couvertures/DessinCouverture.h"
#include "ui/couvertures/ImagesCouvertures.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace Quillet;

// Pictures of covers: read when asked for, and never in the way.
class TestCouvertures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void trouveeSansSonExtension_data();
    void trouveeSansSonExtension();
    void imageAbimee();
    void redimensionnerNeRelitRien();
    void indisponibleEnGris();

private:
    QTemporaryDir dossier_;
};

namespace {

constexpr QSize pixels(60, 90);

Livre livreA(const QString &couverture)
{
    Livre livre = unLivre(1, Vendeur::davrel, Centimes{1000}, Grammes{100});
    livre.couverture = couverture;
    return livre;
}

} // namespace

void TestCouvertures::initTestCase()
{
    QImage rouge(40, 40, QImage::Format_RGB32); // wider than a cover: its sides fall away
    rouge.fill(Qt::red);
    QVERIFY(rouge.save(dossier_.filePath(QStringLiteral("rouge.png"))));
    QFile abimee(dossier_.filePath(QStringLiteral("abimee.png")));
    QVERIFY(abimee.open(QIODevice::WriteOnly) && abimee.write("pas une image") > 0);
}

void TestCouvertures::trouveeSansSonExtension_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("trouvee");
    QTest::newRow("autre extension") << QStringLiteral("rouge.jpg") << true;
    QTest::newRow("sans extension") << QStringLiteral("rouge") << true;
    QTest::newRow("absente") << QStringLiteral("vert.jpg") << false;
    QTest::newRow("hors du dossier") << QStringLiteral("../rouge.png") << false;
    QTest::newRow("vide") << QString() << false;
}

void TestCouvertures::trouveeSansSonExtension()
{
    QFETCH(QString, nom);
    QFETCH(bool, trouvee);
    ImagesCouvertures images{QDir(dossier_.path())};
    QSignalSpy prete(&images, &ImagesCouvertures::prete);
    QVERIFY(images.image(nom, pixels).isNull());
    QVERIFY(images.image(nom, pixels).isNull()); // asked twice, read once
    QTest::qWait(50);
    QCOMPARE(prete.count(), trouvee ? 1 : 0);
    QCOMPARE(images.image(nom, pixels).size(), trouvee ? pixels : QSize(0, 0));
}

void TestCouvertures::imageAbimee()
{
    ImagesCouvertures images{QDir(dossier_.path())};
    QSignalSpy prete(&images, &ImagesCouvertures::prete);
    QVERIFY(images.image(QStringLiteral("abimee.jpg"), pixels).isNull());
    QTRY_COMPARE(prete.count(), 1);
    QVERIFY(images.image(QStringLiteral("abimee.jpg"), pixels).isNull());
    QTest::qWait(50);
    QCOMPARE(prete.count(), 1); // not tried again at each repaint
}

// While the window is dragged wider, every width must find the picture that was read.
void TestCouvertures::redimensionnerNeRelitRien()
{
    ImagesCouvertures images{QDir(dossier_.path())};
    QSignalSpy prete(&images, &ImagesCouvertures::prete);
    Couverture couverture(livreA(QStringLiteral("rouge.jpg")), images);
    const auto milieu = [&](int largeur) {
        couverture.resize(largeur, largeur * 3 / 2);
        return couverture.grab().toImage().pixelColor(couverture.rect().center());
    };
    milieu(240);
    QTRY_COMPARE(prete.count(), 1);
    for (int largeur = 220; largeur < 258; ++largeur)
        QVERIFY2(milieu(largeur).red() > 200, qPrintable(QString::number(largeur)));
    QCOMPARE(prete.count(), 1);
}

void TestCouvertures::indisponibleEnGris()
{
    ImagesCouvertures images{QDir(dossier_.path())};
    Livre livre = livreA(QStringLiteral("absente.jpg"));
    const auto milieu = [&] {
        return DessinCouverture::dessin(livre, pixels, pixels, 1, images).toImage().pixelColor(30, 30);
    };
    QVERIFY(milieu().saturation() > 50);
    livre.disponible = false;
    QCOMPARE(milieu().saturation(), 0);
    QCOMPARE(DessinCouverture::couleur(livre).saturation(), 0); // its shadow's
}

QTEST_MAIN(TestCouvertures)
#include "tst_couvertures.moc"
