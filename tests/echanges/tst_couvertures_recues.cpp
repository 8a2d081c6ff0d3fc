#include "echanges/ControleDesCouvertures.h"
#include "echanges/DepotCouvertures.h"
#include "echanges/LectureDeCouverture.h"
#include "model/Fichier.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QtEndian>

#include <sys/stat.h>

using namespace Quillet;
using namespace std::chrono_literals;

namespace {

// Red over blue, over a white border.
QImage dessin(QSize taille)
{
    QImage image(taille, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter peintre(&image);
    const QRect dedans =
        image.rect().adjusted(taille.width() / 10, taille.height() / 10, -taille.width() / 10, -taille.height() / 10);
    peintre.fillRect(dedans, QColor(30, 60, 200));
    peintre.fillRect(dedans.adjusted(0, 0, 0, -dedans.height() / 3), QColor(200, 40, 30));
    return image;
}

QByteArray encode(const QImage &image, const char *format)
{
    QBuffer sortie;
    return sortie.open(QIODevice::WriteOnly) && image.save(&sortie, format) ? sortie.data() : QByteArray();
}

// Lying on its right side, as a camera says it.
QByteArray couchee(const QImage &image)
{
    const QByteArray orientation("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 32);
    const QByteArray segment = QByteArray("\xff\xe1\x00\x22", 4) + orientation;
    return encode(image, "JPG").insert(2, segment);
}

// The head of a picture of that size, which the rest does not hold.
QByteArray pngAnnonce(quint32 largeur, quint32 hauteur)
{
    QByteArray png = encode(dessin({20, 30}), "PNG");
    qToBigEndian(largeur, png.data() + 16);
    qToBigEndian(hauteur, png.data() + 20);
    quint32 reste = 0xffffffff; // what a chunk is proved by
    for (const char octet : png.mid(12, 17)) {
        reste ^= static_cast<quint8>(octet);
        for (int bit = 0; bit < 8; ++bit)
            reste = (reste >> 1) ^ ((reste & 1) ? 0xedb88320 : 0);
    }
    qToBigEndian(~reste, png.data() + 29);
    return png;
}

QByteArray svg(const QByteArray &corps)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"200\" "
           "height=\"300\">"
           + corps + "</svg>";
}

// A broad line that crosses itself for minutes.
QByteArray bombe()
{
    return svg("<path stroke=\"red\" stroke-width=\"30\" stroke-linejoin=\"round\" d=\"M0 0 "
               + QByteArray("L 200 300 L 0 10 ").repeated(20'000) + "\"/>");
}

struct Suite
{
    std::optional<CouverturePrete> prete;
    QString refus;
};

// The program itself, as built.
QString programme()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/quillet");
}

Suite suite(const std::function<void(LectureDeCouverture &)> &demande, std::chrono::milliseconds patience = 30s)
{
    LectureDeCouverture lecture(programme(), patience);
    Suite suite;
    int reponses = 0;
    QObject::connect(&lecture, &LectureDeCouverture::prete, [&](const CouverturePrete &prete) {
        suite.prete = prete;
        ++reponses;
    });
    QObject::connect(&lecture, &LectureDeCouverture::refusee, [&](const QString &raison) {
        suite.refus = lisible(raison);
        ++reponses;
    });
    demande(lecture);
    const bool venue = QTest::qWaitFor([&] { return reponses > 0; }, 60'000);
    return venue && reponses == 1 && !lecture.enCours() ? suite : Suite{};
}

Suite lue(const QByteArray &octets)
{
    return suite([&](LectureDeCouverture &lecture) { lecture.lireOctets(octets); });
}

bool proches(const QColor &une, const QColor &autre)
{
    return std::abs(une.red() - autre.red()) < 24 && std::abs(une.green() - autre.green()) < 24
           && std::abs(une.blue() - autre.blue()) < 24;
}

} // namespace

// Pictures that come from outside, read by a process of its own.
class TestCouverturesRecues : public QObject
{
    Q_OBJECT

private slots:
    void cadreEtReduit()
    {
        QImage transparente = dessin({400, 600}).convertToFormat(QImage::Format_ARGB32);
        transparente.setPixelColor(200, 300, Qt::transparent);
        const QByteArray enSvg = svg("<rect width=\"200\" height=\"300\" fill=\"#c8281e\"/>");
        for (const auto &[nom, octets, taille, extension] : Rangees<QByteArray, QSize, const char *>{
                 {"plus large", encode(dessin({900, 600}), "PNG"), {400, 600}, "jpg"},
                 {"plus haute", encode(dessin({400, 900}), "JPG"), {400, 600}, "jpg"},
                 {"grande", encode(dessin({3000, 3000}), "JPG"), {840, 1260}, "jpg"},
                 {"petite, comme elle est", encode(dessin({20, 30}), "PNG"), {20, 30}, "jpg"},
                 {"couchée", couchee(dessin({600, 400})), {400, 600}, "jpg"},
                 {"transparente", encode(transparente, "PNG"), {400, 600}, "png"},
                 {"dessin, à la taille des écrans", enSvg, {840, 1260}, "jpg"}}) {
            const Rangee rangee(nom);
            const Suite suite = lue(octets);
            QVERIFY2(suite.prete, qPrintable(suite.refus));
            const QImage image = QImage::fromData(suite.prete->octets);
            QCOMPARE(image.size(), taille);
            QCOMPARE(suite.prete->extension, QString::fromLatin1(extension));
            QVERIFY(suite.prete->octets.startsWith(image.hasAlphaChannel() ? "\x89PNG" : "\xff\xd8\xff"));
            const auto &teinte = suite.prete->teinte;
            QVERIFY(proches(QColor(int(teinte[0]), int(teinte[1]), int(teinte[2])), QColor(200, 40, 30)));
        }
    }

    void rienDAutreQueSesPoints()
    {
        QImage image = dessin({400, 600});
        image.setText(QStringLiteral("Author"), QStringLiteral("Jeanne"));
        image.setColorSpace(QColorSpace::AdobeRgb);
        for (const char *format : {"PNG", "JPG"}) {
            const Suite suite = lue(encode(image, format));
            QVERIFY2(suite.prete, qPrintable(suite.refus));
            const QImage rendue = QImage::fromData(suite.prete->octets);
            QVERIFY(rendue.textKeys().isEmpty() && !suite.prete->octets.contains("Jeanne"));
            QVERIFY(!rendue.colorSpace().isValid() || rendue.colorSpace() == QColorSpace(QColorSpace::SRgb));
            QVERIFY(rendue.pixelColor(200, 200).red() > 212); // the same red, told otherwise
        }
    }

    void refuseeEnMots()
    {
        const QByteArray grande = encode(dessin({1200, 1800}), "JPG");
        const QByteArray png = encode(dessin({400, 600}), "PNG");
        for (const auto &[nom, octets, phrase] : Rangees<QByteArray, const char *>{
                 {"rien", {}, "Ce fichier est vide. Quillet prend les images SVG, PNG"},
                 {"texte", "Le Phare de sel", "n’est pas une image connue. Quillet prend"},
                 {"GIF", "GIF89a\x01", "n’est pas une image connue"},
                 {"démesurée", pngAnnonce(30'000, 30'000), "trop grande : 30 000 × 30 000 points"},
                 {"démesurée en tout", pngAnnonce(15'000, 15'000), "trop grande : 15 000 × 15 000 points"},
                 {"JPEG coupé", grande.first(grande.size() / 2), "abîmée ou coupée"},
                 {"PNG coupé", png.first(png.size() / 2), "abîmée ou coupée"},
                 {"PNG qui se dit plus grand", pngAnnonce(4'000, 6'000), "abîmée ou coupée"},
                 {"SVG coupé", svg("<g>").chopped(4), "abîmé ou coupé (ligne 1)"},
                 {"SVG sans taille", "<svg xmlns=\"http://www.w3.org/2000/svg\"/>", "ne dit pas sa taille"},
                 {"SVG interminable", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"90000\"/>",
                  "beaucoup trop long"},
                 {"SVG et un autre fichier", svg("<image xlink:href=\"/etc/hostname\" width=\"9\" height=\"9\"/>"),
                  "se sert d’un autre fichier, « /etc/hostname »"}}) {
            const Rangee rangee(nom);
            const Suite suite = lue(octets);
            QVERIFY2(suite.refus.contains(lisible(QString::fromUtf8(phrase))), qPrintable(suite.refus));
            QVERIFY(!suite.prete && suite.refus.endsWith(u'.'));
        }
    }

    void neDureJamais()
    {
        const Suite suite = ::suite([](LectureDeCouverture &lecture) { lecture.lireOctets(bombe()); }, 2s);
        QVERIFY2(suite.refus.contains(QStringLiteral("trop compliquée")), qPrintable(suite.refus));
    }

    // Those of an archive: as they are, or not at all.
    void toutesEnsemble()
    {
        const QByteArray png = encode(dessin({400, 600}), "PNG");
        QStringList chemins;
        const auto poser = [&](const QString &nom, const QByteArray &octets) {
            Fichier::ecrire(chemins.emplaceBack(dossier_.filePath(nom)), octets);
        };
        const auto refusees = [](const QStringList &images, std::chrono::milliseconds patience) {
            return ControleDesCouvertures::refusees(images, programme(), patience);
        };
        poser(QStringLiteral("a\nété.png"), png);
        poser(QStringLiteral("a.bmp"), encode(dessin({400, 600}), "BMP"));
        poser(QStringLiteral("a.jpg"), encode(dessin({840, 1260}), "JPG"));
        poser(QStringLiteral("a.svg"), svg("<rect width=\"200\" height=\"300\"/>"));
        poser(QStringLiteral("autre-nom.jpg"), png); // as it is shown
        QCOMPARE(refusees(chemins, 30s), QStringList());
        poser(QStringLiteral("texte.png"), "Le Phare de sel");
        poser(QStringLiteral("coupe.jpg"), encode(dessin({1200, 1800}), "JPG").first(9000));
        poser(QStringLiteral("demesuree.png"), pngAnnonce(30'000, 30'000));
        poser(QStringLiteral("longue.png"), encode(dessin({1, 2000}), "PNG"));
        poser(QStringLiteral("d-ailleurs.svg"), svg("<image xlink:href=\"/etc/hostname\"/>"));
        QCOMPARE(refusees(chemins, 30s), chemins.sliced(5));
        poser(QStringLiteral("bombe.svg"), bombe());
        try {
            refusees({chemins.last()}, 4s); // alone: the bound is by the clock
            QFAIL("bombe prise");
        } catch (const Echec &erreur) {
            QCOMPARE(lisible(erreur.texte()), QStringLiteral("Cette archive ne peut pas être reprise : l’image « "
                                                             "bombe.svg » prendrait trop de temps ou de mémoire."));
        }
        for (const char *autre : {"/absent", "/bin/true"})
            QVERIFY_THROWS_EXCEPTION(Echec, ControleDesCouvertures::refusees(chemins, QString::fromLatin1(autre)));
    }

    void deCeQuiNEstPasUnFichier()
    {
        const QString tube = dossier_.filePath(QStringLiteral("tube.png"));
        QCOMPARE(mkfifo(QFile::encodeName(tube).constData(), 0600), 0);
        const QString trou = dossier_.filePath(QStringLiteral("trou.jpg"));
        QFile creux(trou);
        QVERIFY(creux.open(QIODevice::WriteOnly) && creux.resize(Fichier::Borne::image + 1));
        for (const auto &[nom, chemin, phrase] : Rangees<QString, const char *>{
                 {"dossier", dossier_.path(), "un dossier occupe la place du fichier. Quillet prend"},
                 {"tube", tube, "ce n’est pas un fichier ordinaire. Quillet prend"},
                 {"trop lourd", trou, "« trou.jpg » ne peut pas être lu : le fichier dépasse la taille permise."},
                 {"parti", dossier_.filePath(QStringLiteral("parti.png")), "n’existe plus. Quillet prend"}}) {
            const Rangee rangee(nom);
            const QString refus = suite([&](LectureDeCouverture &lecture) { lecture.lireFichier(chemin); }).refus;
            QVERIFY2(refus.contains(lisible(QString::fromUtf8(phrase))), qPrintable(refus));
        }
        const QString image = dossier_.filePath(QStringLiteral("-x.png"));
        QVERIFY(dessin({20, 30}).save(image));
        QVERIFY(suite([&](LectureDeCouverture &lecture) { lecture.lireFichier(image); }).prete);
    }

    // The one asked for last is the one that comes, and none comes after it was given up.
    void abandonnee()
    {
        LectureDeCouverture lecture(programme());
        QSignalSpy refusee(&lecture, &LectureDeCouverture::refusee);
        QSignalSpy prete(&lecture, &LectureDeCouverture::prete);
        lecture.lireOctets(bombe());
        lecture.lireOctets("Le Phare de sel");
        QTRY_COMPARE_WITH_TIMEOUT(refusee.count(), 1, 60'000);
        QVERIFY(refusee[0][0].toString().contains(QStringLiteral("pas une image connue")));
        lecture.lireOctets(encode(dessin({20, 30}), "PNG"));
        lecture.abandonner();
        QVERIFY(!lecture.enCours());
        LectureDeCouverture sansProgramme(dossier_.filePath(QStringLiteral("absent")));
        QSignalSpy introuvable(&sansProgramme, &LectureDeCouverture::refusee);
        sansProgramme.lireOctets("x");
        QTRY_COMPARE(introuvable.count(), 1);
        QVERIFY(introuvable[0][0].toString().contains(QStringLiteral("ne se lance plus")));
        QCOMPARE(prete.count(), 0);
    }

    void deposeeSousSonNom()
    {
        const QDir couvertures(dossier_.filePath(QStringLiteral("donnees/couvertures")));
        const CouverturePrete une{"une", QStringLiteral("jpg"), {1, 2, 3}};
        const QString nom = Couvertures::deposer(couvertures, QStringLiteral("Été d’or"), une);
        QCOMPARE(nom, QStringLiteral("ete-d-or-52597892.jpg"));
        const auto ecriture = [&] {
            return QFileInfo(couvertures.filePath(nom)).fileTime(QFile::FileMetadataChangeTime);
        };
        const auto avant = ecriture();
        QCOMPARE(Couvertures::deposer(couvertures, QStringLiteral("Été d’or"), une), nom);
        QCOMPARE(ecriture(), avant); // not written again
        const CouverturePrete autre{"autre", QStringLiteral("png"), {1, 2, 3}};
        const QString second = Couvertures::deposer(couvertures, QStringLiteral("Été d’or"), autre);
        QVERIFY(second != nom && second.endsWith(QStringLiteral(".png")));

        const CouverturePrete cousine{"cousine", QStringLiteral("jpg"), {1, 2, 3}};
        const QString prise = Couvertures::nomDuDepot(QStringLiteral("Été d’or"), cousine);
        Fichier::ecrire(couvertures.filePath(prise), "à quelqu’un");
        const QString longue = Couvertures::deposer(couvertures, QStringLiteral("Été d’or"), cousine);
        QCOMPARE(longue.size(), prise.size() + 8);
        QCOMPARE(Fichier::lire(couvertures.filePath(longue), 100), cousine.octets);
        QCOMPARE(Couvertures::deposer(couvertures, QStringLiteral("Été d’or"), cousine), longue);

        Livre livre = unLivre(1, Vendeur::davrel, Centimes{1000}, {});
        livre.couverture = nom;
        for (const char *etranger : {"photo.jpg", "photo-52597892.jpg", "photo-00000000.png"})
            Fichier::ecrire(couvertures.filePath(QString::fromLatin1(etranger)), "à quelqu’un");
        Fichier::ecrire(couvertures.filePath(QStringLiteral("photo-52597892.jpg")), "un livre à moi");
        const QDateTime jour = QDateTime::currentDateTime();
        Couvertures::elaguer(couvertures, {livre}, jour.addDays(29));
        QVERIFY(couvertures.exists(second)); // its book may be on its way
        Couvertures::elaguer(couvertures, {livre}, jour.addDays(32));
        QCOMPARE(couvertures.entryList(QDir::Files).join(u' '),
                 nom + u' ' + prise + QStringLiteral(" photo-00000000.png photo-52597892.jpg photo.jpg"));
    }

private:
    QTemporaryDir dossier_;
};

QTEST_MAIN(TestCouverturesRecues)
#include "tst_couvertures_recues.moc"
