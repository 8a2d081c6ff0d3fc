#include "ui/commande/ImagesCouvertures.h"

#include "model/Couvertures.h"

#include <QElapsedTimer>
#include <QImageReader>

#include <algorithm>

namespace {

constexpr int memoireKio = 64 * 1024;
constexpr int tempsDeLecture = 8; // ms

QString cle(const QString &couverture, const QSize &pixels)
{
    return QStringLiteral("%1/%2x%3")
        .arg(couverture, QString::number(pixels.width()), QString::number(pixels.height()));
}

} // namespace

ImagesCouvertures::ImagesCouvertures(const QDir &dossier, QObject *parent)
    : QObject(parent), dossier_(dossier), fichiers_(Couvertures::fichiers(dossier)), images_(memoireKio)
{
    lecture_.setSingleShot(true);
    connect(&lecture_, &QTimer::timeout, this, &ImagesCouvertures::lireLesSuivantes);
}

QImage ImagesCouvertures::image(const QString &couverture, const QSize &pixels)
{
    if (!fichiers_.contains(Couvertures::nom(couverture)) || pixels.isEmpty())
        return {};
    if (const QImage *lue = images_.object(cle(couverture, pixels)))
        return *lue;
    if (const Demande demande{couverture, pixels}; !demandes_.contains(demande))
        demandes_.append(demande);
    lecture_.start(0);
    return {};
}

// As many as half a frame holds: the window answers in between, and is not repainted for each.
void ImagesCouvertures::lireLesSuivantes()
{
    QElapsedTimer chrono;
    chrono.start();
    while (!demandes_.isEmpty() && chrono.elapsed() < tempsDeLecture)
        lireUneFois(demandes_.takeFirst());
    if (!demandes_.isEmpty())
        lecture_.start(0);
}

void ImagesCouvertures::lireUneFois(const Demande &demande)
{
    const QImage image = lire(demande);
    if (image.isNull())
        fichiers_.remove(Couvertures::nom(demande.couverture)); // a damaged picture: the coloured cover stands in
    else
        images_.insert(cle(demande.couverture, demande.pixels), new QImage(image),
                       std::max<qsizetype>(1, image.sizeInBytes() / 1024));
    emit prete(demande.couverture);
}

QImage ImagesCouvertures::lire(const Demande &demande) const
{
    QImageReader lecteur(dossier_.filePath(fichiers_.value(Couvertures::nom(demande.couverture))));
    const QSize originale = lecteur.size();
    if (originale.isEmpty())
        return {};
    const QSize remplie = originale.scaled(demande.pixels, Qt::KeepAspectRatioByExpanding);
    lecteur.setScaledSize(remplie);
    const QPoint coin((remplie.width() - demande.pixels.width()) / 2, (remplie.height() - demande.pixels.height()) / 2);
    const QImage image = lecteur.read();
    return image.isNull() ? image : image.copy(QRect(coin, demande.pixels));
}
