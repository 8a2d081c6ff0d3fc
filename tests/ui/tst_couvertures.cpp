#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "ui/commande/Couverture.h"
#include "ui/couvertures/DessinCouverture.h"
#include "ui/couvertures/ImagesCouvertures.h"

#include <QFile>
#include <QSignalSpy>

using namespace Quillet;

namespace {

constexpr QSize pixels(60, 90);

// How many were read once another one, asked for now, is there too.
qsizetype luesAvantUneAutre(ImagesCouvertures &images, const QSignalSpy &prete)
{
    const auto arrivee = [&] { return prete.contains(QVariantList{"temoin"}); };
    images.image("temoin", pixels);
    return QTest::qWaitFor(arrivee) ? prete.count() - 1 : -1;
}

Livre livreA(const QString &couverture)
{
    Livre livre = unLivre(1, Vendeur::davrel, Centimes{1000}, Grammes{100});
    livre.couverture = couverture;
    return livre;
}

} // namespace

// Pictures of covers: read when asked for, and never in the way.
class TestCouvertures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QImage rouge(40, 40, QImage::Format_RGB32); // wider than a cover: its sides fall away
        rouge.fill(Qt::red);
        QVERIFY(rouge.save(dossier_.filePath("rouge.png")) && rouge.save(dossier_.filePath("temoin.png")));
        QFile abimee(dossier_.filePath("abimee.png"));
        QVERIFY(abimee.open(QIODevice::WriteOnly) && abimee.write("pas une image") > 0);
    }

    void trouveeSansSonExtension()
    {
        for (const auto &[nom, trouvee] : Rangees<bool>{
                 {"rouge.jpg", true}, {"rouge", true}, {"vert.jpg", false}, {"../rouge.png", false}, {"", false}}) {
            const Rangee rangee(nom);
            ImagesCouvertures images{QDir(dossier_.path())};
            QSignalSpy prete(&images, &ImagesCouvertures::prete);
            QVERIFY(images.image(nom, pixels).isNull());
            QVERIFY(images.image(nom, pixels).isNull()); // asked twice, read once
            QTRY_COMPARE(images.image(nom, pixels).size(), trouvee ? pixels : QSize(0, 0));
            QCOMPARE(luesAvantUneAutre(images, prete), trouvee ? 1 : 0);
        }
    }

    void imageAbimee()
    {
        ImagesCouvertures images{QDir(dossier_.path())};
        QSignalSpy prete(&images, &ImagesCouvertures::prete);
        QVERIFY(images.image("abimee.jpg", pixels).isNull());
        QTRY_COMPARE(prete.count(), 1);
        QVERIFY(images.image("abimee.jpg", pixels).isNull());
        QCOMPARE(luesAvantUneAutre(images, prete), 1); // not tried again at each repaint
    }

    // While the window is dragged wider, every width must find the picture that was read.
    void redimensionnerNeRelitRien()
    {
        ImagesCouvertures images{QDir(dossier_.path())};
        QSignalSpy prete(&images, &ImagesCouvertures::prete);
        Couverture couverture(livreA("rouge.jpg"), images);
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

    void indisponibleEnGris()
    {
        ImagesCouvertures images{QDir(dossier_.path())};
        Livre livre = livreA("absente.jpg");
        const auto milieu = [&] {
            return DessinCouverture::dessin(livre, pixels, pixels, 1, images).toImage().pixelColor(30, 30);
        };
        QVERIFY(milieu().saturation() > 50);
        livre.disponible = false;
        QCOMPARE(milieu().saturation(), 0);
        QCOMPARE(DessinCouverture::couleur(livre).saturation(), 0); // its shadow's
    }

private:
    QTemporaryDir dossier_;
};

QTEST_MAIN(TestCouvertures)
#include "tst_couvertures.moc"
