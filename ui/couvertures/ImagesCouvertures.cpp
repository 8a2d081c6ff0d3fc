#include "ui/couvertures/ImagesCouvertures.h"

#include "model/Couvertures.h"
#include "model/Fichier.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int memoireKio = 64 * 1024;
constexpr int lecteursAuPlus = 2; // each holds a whole picture while it reads it

QString cle(const QString &couverture, const QSize &pixels)
{
    return QStringLiteral("%1/%2x%3")
        .arg(couverture, QString::number(pixels.width()), QString::number(pixels.height()));
}

QImage lire(const QString &chemin, const QSize &pixels)
{
    if (const QFileInfo fichier(chemin); !fichier.isFile() || fichier.size() > Fichier::Borne::image)
        return {};
    QImageReader lecteur(chemin);
    const QSize originale = lecteur.size();
    if (originale.isEmpty())
        return {};
    const QSize remplie = originale.scaled(pixels, Qt::KeepAspectRatioByExpanding);
    lecteur.setScaledSize(remplie);
    const QPoint coin((remplie.width() - pixels.width()) / 2, (remplie.height() - pixels.height()) / 2);
    const QImage image = lecteur.read();
    return image.isNull() ? image : image.copy(QRect(coin, pixels));
}

} // namespace

ImagesCouvertures::ImagesCouvertures(const QDir &dossier, QObject *parent)
    : QObject(parent), dossier_(dossier), fichiers_(Couvertures::fichiers(dossier)), images_(memoireKio)
{
    lecteurs_.setMaxThreadCount(lecteursAuPlus);
}

// Those being read are waited for: they hand their picture to this object.
ImagesCouvertures::~ImagesCouvertures()
{
    lecteurs_.clear();
    lecteurs_.waitForDone();
}

void ImagesCouvertures::setDossier(const QDir &dossier)
{
    dossier_ = dossier;
    fichiers_ = Couvertures::fichiers(dossier);
    images_.clear();
    enLecture_.clear();
    ++lot_;
    emit prete({});
}

void ImagesCouvertures::ajouter(const QString &fichier)
{
    fichiers_.insert(Couvertures::nom(fichier), fichier);
    emit prete(fichier);
}

QImage ImagesCouvertures::image(const QString &couverture, const QSize &pixels)
{
    const auto fichier = fichiers_.constFind(Couvertures::nom(couverture));
    if (fichier == fichiers_.constEnd() || pixels.isEmpty())
        return {};
    const QString demande = cle(couverture, pixels);
    if (const QImage *lue = images_.object(demande))
        return *lue;
    if (!enLecture_.contains(demande)) {
        enLecture_.insert(demande);
        const auto travail = [this, lot = lot_, couverture, pixels, demande, chemin = dossier_.filePath(*fichier)] {
            QMetaObject::invokeMethod(
                this, [=, this, image = lire(chemin, pixels)] { recevoir(lot, couverture, demande, image); },
                Qt::QueuedConnection);
        };
        // Once the painting that asks is over: reading would slow it down. The last asked for is in sight, the first
        // may have scrolled away.
        QMetaObject::invokeMethod(
            this, [this, travail, rang = ++rang_] { lecteurs_.start(travail, rang); }, Qt::QueuedConnection);
    }
    return {};
}

void ImagesCouvertures::recevoir(int lot, const QString &couverture, const QString &cle, const QImage &image)
{
    if (lot != lot_)
        return;
    enLecture_.remove(cle);
    if (image.isNull())
        fichiers_.remove(Couvertures::nom(couverture)); // a damaged picture: the coloured cover stands in
    else
        images_.insert(cle, new QImage(image), std::max<qsizetype>(1, image.sizeInBytes() / 1024));
    emit prete(couverture);
}

} // namespace Quillet
