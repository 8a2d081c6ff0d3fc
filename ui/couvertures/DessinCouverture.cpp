#include "ui/couvertures/DessinCouverture.h"

#include "composants/Theme.h"
#include "ui/couvertures/ImagesCouvertures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Quillet {

namespace {

QColor voile(int gris, double opacite)
{
    return {gris, gris, gris, static_cast<int>(std::lround(opacite * 255))};
}

// The binding: a spine on the left, a sheen across.
void peindreReliure(QPainter &peintre, const QRectF &cadre)
{
    QLinearGradient dos(cadre.topLeft(), cadre.topRight());
    dos.setColorAt(0, voile(0, 0.28));
    dos.setColorAt(0.018, voile(255, 0.22));
    dos.setColorAt(0.04, voile(0, 0.08));
    dos.setColorAt(0.09, Qt::transparent);
    peintre.fillRect(cadre, dos);
    QLinearGradient reflet(cadre.topLeft(), cadre.bottomRight());
    reflet.setColorAt(0, voile(255, 0.12));
    reflet.setColorAt(0.5, Qt::transparent);
    reflet.setColorAt(1, voile(0, 0.06));
    peintre.fillRect(cadre, reflet);
}

QPixmap enGris(const QPixmap &image)
{
    QImage pixels = image.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        auto *ligne = reinterpret_cast<QRgb *>(pixels.scanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            const int gris = qGray(ligne[x]);
            ligne[x] = qRgba(gris, gris, gris, qAlpha(ligne[x]));
        }
    }
    return QPixmap::fromImage(std::move(pixels));
}

} // namespace

QColor DessinCouverture::couleur(const Livre &livre)
{
    Q_ASSERT(livre.teinte.size() >= 3); // no book is read without
    const auto composante = [&](qsizetype rang) {
        return static_cast<int>(std::clamp<qint64>(livre.teinte[rang], 0, 255));
    };
    const QColor propre(composante(0), composante(1), composante(2));
    const int gris = qGray(propre.rgb());
    return livre.disponible ? propre : QColor(gris, gris, gris);
}

QPixmap DessinCouverture::dessin(const Livre &livre, const QSizeF &taille, const QSizeF &tailleDeLecture, qreal densite,
                                 ImagesCouvertures &images)
{
    return dessin(livre, taille, densite, images.image(livre.couverture, (tailleDeLecture * densite).toSize()));
}

QPixmap DessinCouverture::dessin(const Livre &livre, const QSizeF &taille, qreal densite, const QImage &image)
{
    const QSize pixels = (taille * densite).toSize();
    QPixmap dessin(pixels);
    dessin.setDevicePixelRatio(densite);
    dessin.fill(Qt::transparent);
    QPainter peintre(&dessin);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QRectF tout(QPointF(), taille);
    QPainterPath contour;
    contour.addRoundedRect(tout, Theme::rayonCouverture, Theme::rayonCouverture);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    QBrush brosse(couleur(livre));
    if (!image.isNull()) {
        brosse = QBrush(image);
        brosse.setTransform(QTransform::fromScale(taille.width() / image.width(), taille.height() / image.height()));
    }
    peintre.fillPath(contour, brosse);
    peintre.setClipPath(contour);
    peindreReliure(peintre, tout);
    peintre.setClipping(false);
    peintre.setPen(QPen(voile(0, 0.22), 1));
    peintre.drawRoundedRect(tout.adjusted(0.5, 0.5, -0.5, -0.5), Theme::rayonCouverture, Theme::rayonCouverture);
    peintre.end();
    return livre.disponible ? dessin : enGris(dessin);
}

} // namespace Quillet
