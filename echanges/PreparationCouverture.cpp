#include "echanges/PreparationCouverture.h"

#include "echanges/ControleSvg.h"
#include "echanges/LectureEntiere.h"
#include "echanges/TeinteDominante.h"
#include "model/Echec.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QLocale>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int coteAuPlus = 20'000;
constexpr qint64 pointsAuPlus = 100'000'000;
constexpr int memoireEnMebioctets = 1024; // of the decoded picture, at most eight bytes a point
constexpr int qualite = 90;

// A format is told by its bytes, never by a name, and no other decoder is tried.
QByteArray format(const QByteArray &octets)
{
    if (octets.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    if (octets.startsWith("\xff\xd8\xff"))
        return "jpeg";
    if (octets.startsWith("RIFF") && octets.mid(8, 4) == "WEBP")
        return "webp";
    if (octets.first(std::min<qsizetype>(octets.size(), 65'536)).contains("<svg"))
        return "svg";
    return {};
}

bool seLit(const QByteArray &format)
{
    return QImageReader::supportedImageFormats().contains(format);
}

QString ecrit(qint64 nombre)
{
    return QLocale(QLocale::French).toString(nombre);
}

// `voulue`: how large it is read.
void verifierLaTaille(QSize taille, QSize voulue, bool dessin)
{
    if (dessin && PreparationCouverture::demesuree(voulue)) // it has no points of its own
        throw Echec(QStringLiteral("Ce dessin SVG est beaucoup trop long ou trop large pour une couverture, qui a deux "
                                   "parts de large pour trois de haut."));
    if (!dessin && PreparationCouverture::demesuree(taille))
        throw Echec(QStringLiteral("Cette image est trop grande : %1 × %2 points. Quillet en prend %3 de côté au plus, "
                                   "et %4 millions en tout ; une largeur de %5 suffit à une couverture.")
                        .arg(ecrit(taille.width()), ecrit(taille.height()), ecrit(coteAuPlus),
                             ecrit(pointsAuPlus / 1'000'000), ecrit(CouverturePrete::tailleAuPlus.width())));
}

// What must be read to fill a cover; only a drawing grows.
QSize aLire(QSize taille, bool dessin)
{
    const QSize remplie = taille.scaled(CouverturePrete::tailleAuPlus, Qt::KeepAspectRatioByExpanding);
    return dessin || remplie.width() < taille.width() ? remplie : taille;
}

QImage lire(const QByteArray &octets, const QByteArray &format)
{
    const Echec abimee(QStringLiteral("L’image est abîmée ou coupée : elle ne se lit pas jusqu’au bout. Enregistrez-la "
                                      "de nouveau, ou choisissez-en une autre."));
    QBuffer fichier;
    fichier.setData(octets);
    fichier.open(QIODevice::ReadOnly);
    QImageReader lecteur(&fichier, format);
    lecteur.setAutoDetectImageFormat(false);
    lecteur.setAutoTransform(true);
    QImageReader::setAllocationLimit(memoireEnMebioctets);
    const bool dessin = format == "svg";
    const QSize brute = lecteur.size();
    if (brute.isEmpty())
        throw dessin
            ? Echec(QStringLiteral("Le dessin SVG ne dit pas sa taille. Enregistrez-le de nouveau, ou en PNG."))
            : abimee;
    const bool couchee = lecteur.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize taille = couchee ? brute.transposed() : brute;
    const QSize voulue = aLire(taille, dessin);
    verifierLaTaille(taille, voulue, dessin);
    lecteur.setScaledSize(couchee ? voulue.transposed() : voulue);
    QImage image;
    const bool entiere = LectureEntiere::reussit([&] {
        image = lecteur.read();
        return !image.isNull();
    });
    if (!entiere)
        throw abimee;
    return image;
}

// In the proportions of a cover, as screens show it.
QImage rognee(const QImage &image)
{
    const QSize cadre = CouverturePrete::tailleAuPlus.scaled(image.size(), Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const QPoint coin((image.width() - cadre.width()) / 2, (image.height() - cadre.height()) / 2);
    return image.copy(QRect(coin, cadre));
}

bool transparait(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return false;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) < 255)
                return true;
    return false;
}

} // namespace

bool PreparationCouverture::demesuree(QSize taille)
{
    return taille.width() > coteAuPlus || taille.height() > coteAuPlus
           || qint64{taille.width()} * taille.height() > pointsAuPlus;
}

QString PreparationCouverture::formatsPris()
{
    return seLit("webp") ? QStringLiteral("Quillet prend les images SVG, PNG, JPEG et WebP.")
                         : QStringLiteral("Quillet prend les images SVG, PNG et JPEG.");
}

CouverturePrete PreparationCouverture::de(const QByteArray &octets)
{
    if (octets.isEmpty())
        throw Echec(QStringLiteral("Ce fichier est vide. ") + formatsPris());
    const QByteArray leFormat = format(octets);
    if (leFormat.isEmpty())
        throw Echec(QStringLiteral("Ce fichier n’est pas une image connue. ") + formatsPris());
    if (!seLit(leFormat))
        throw Echec(QStringLiteral("Ce système ne lit pas les images %1. ").arg(QString::fromLatin1(leFormat).toUpper())
                    + formatsPris());
    if (leFormat == "svg")
        ControleSvg::verifier(octets);
    QImage image = lire(octets, leFormat);
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (image.colorSpace().isValid())
        image.convertToColorSpace(QColorSpace::SRgb);
    image = rognee(image);
    if (image.width() > CouverturePrete::tailleAuPlus.width())
        image = image.scaled(CouverturePrete::tailleAuPlus, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const bool voile = transparait(image);
    image.convertTo(voile ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    // The points alone, without what the picture tells of where and by whom it was made.
    const QImage nue(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format());

    CouverturePrete prete{{}, voile ? QStringLiteral("png") : QStringLiteral("jpg"), TeinteDominante::de(nue)};
    QBuffer sortie(&prete.octets);
    sortie.open(QIODevice::WriteOnly);
    if (!nue.save(&sortie, voile ? "PNG" : "JPG", voile ? -1 : qualite))
        throw Echec(QStringLiteral("L’image n’a pas pu être convertie."));
    return prete;
}

} // namespace Quillet
