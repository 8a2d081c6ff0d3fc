#include "composants/Dessin.h"

#include "composants/Theme.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace Quillet {

QColor Dessin::melange(const QColor &a, const QColor &b, double part)
{
    const auto p = static_cast<float>(std::clamp(part, 0.0, 1.0));
    const auto entre = [p](float x, float y) { return x + (y - x) * p; };
    return QColor::fromRgbF(entre(a.redF(), b.redF()), entre(a.greenF(), b.greenF()), entre(a.blueF(), b.blueF()),
                            entre(a.alphaF(), b.alphaF()));
}

QColor Dessin::transparente(QColor couleur, double opacite)
{
    couleur.setAlphaF(static_cast<float>(opacite));
    return couleur;
}

void Dessin::aplat(QPainter &peintre, const QRectF &cadre, qreal rayon, const QColor &couleur)
{
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(couleur);
    peintre.drawRoundedRect(cadre, rayon, rayon);
}

qreal Dessin::trait(const QPainter &peintre)
{
    const qreal densite = peintre.device()->devicePixelRatioF();
    return std::max(1.0, std::floor(densite)) / densite;
}

QRectF Dessin::surLesPixels(const QPainter &peintre, const QRectF &cadre)
{
    const QTransform appareil = peintre.deviceTransform();
    const QRectF place = appareil.mapRect(cadre);
    const QPointF haut(std::round(place.left()), std::round(place.top()));
    const QPointF bas(std::round(place.right()), std::round(place.bottom()));
    return appareil.inverted().mapRect(QRectF(haut, bas));
}

void Dessin::filet(QPainter &peintre, const QPointF &debut, qreal longueur, const QPalette &palette)
{
    peintre.fillRect(surLesPixels(peintre, {debut, QSizeF(longueur, trait(peintre))}), Theme::filet(palette));
}

void Dessin::encadre(QPainter &peintre, const QRectF &cadre, qreal rayon, const QColor &fond, const QColor &contour)
{
    const qreal epaisseur = trait(peintre);
    const qreal retrait = epaisseur / 2; // the pen draws on both sides of its line
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(contour, epaisseur));
    peintre.setBrush(fond);
    peintre.drawRoundedRect(surLesPixels(peintre, cadre).adjusted(retrait, retrait, -retrait, -retrait), rayon, rayon);
}

void Dessin::carte(QPainter &peintre, const QRect &cadre, const QPalette &palette)
{
    encadre(peintre, cadre, Theme::rayonGroupe, Theme::carte(palette), Theme::filet(palette));
}

int Dessin::etiquette(QPainter &peintre, const QRect &ligne, const QString &texte, const Etiquette &apparence)
{
    const QFontMetrics mesures(apparence.police);
    const QSize taille = QSize(mesures.horizontalAdvance(texte), mesures.height()) + apparence.marges;
    const QRect capsule(QPoint(ligne.right() + 1 - taille.width(), ligne.center().y() + 1 - taille.height() / 2),
                        taille);
    aplat(peintre, capsule, apparence.rayon, apparence.fond);
    peintre.setFont(apparence.police);
    peintre.setPen(apparence.encre);
    peintre.drawText(capsule, Qt::AlignCenter, texte);
    return capsule.left();
}

bool Dessin::focusVisible(const QWidget *widget)
{
    return widget->hasFocus() && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void Dessin::anneauDeFocus(QPainter &peintre, const QRectF &contour, qreal rayon, const QColor &couleur)
{
    constexpr qreal retrait = epaisseurDAnneau / 2; // the pen draws on both sides of its line
    peintre.save();
    peintre.setPen(QPen(couleur, epaisseurDAnneau));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(contour.adjusted(retrait, retrait, -retrait, -retrait), rayon - retrait, rayon - retrait);
    peintre.restore();
}

void Dessin::ombreDouce(QPainter &peintre, const QRectF &capsule)
{
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(QColor(0, 0, 0, 26));
    for (const double etalement : {2.0, 1.0, 0.0}) {
        const QRectF halo = capsule.translated(0, 1).adjusted(-etalement, -etalement, etalement, etalement);
        peintre.drawRoundedRect(halo, halo.height() / 2, halo.height() / 2);
    }
}

namespace {

// How much of a blurred bar of the given length covers each pixel of its axis. A Gaussian blur of a rectangle is the
// product of two such profiles, so that no convolution is needed.
std::vector<float> profil(double longueur, double marge, double densite)
{
    const double echelle = marge / 2 * std::numbers::sqrt2; // sigma is half the blur radius
    std::vector<float> valeurs(static_cast<std::size_t>(std::ceil((longueur + 2 * marge) * densite)));
    for (std::size_t i = 0; i < valeurs.size(); ++i) {
        const double x = (static_cast<double>(i) + 0.5) / densite - marge;
        valeurs[i] = static_cast<float>((std::erf(x / echelle) - std::erf((x - longueur) / echelle)) / 2);
    }
    return valeurs;
}

} // namespace

QPixmap Dessin::ombre(const QSizeF &taille, qreal rayon, const QColor &couleur, qreal densite)
{
    const auto horizontal = profil(taille.width(), rayon, densite);
    const auto vertical = profil(taille.height(), rayon, densite);
    std::array<QRgb, 256> parAlpha{};
    for (int alpha = 0; alpha < 256; ++alpha)
        parAlpha[static_cast<std::size_t>(alpha)] =
            qPremultiply(qRgba(couleur.red(), couleur.green(), couleur.blue(), alpha));
    QImage image(static_cast<int>(horizontal.size()), static_cast<int>(vertical.size()),
                 QImage::Format_ARGB32_Premultiplied);
    for (std::size_t y = 0; y < vertical.size(); ++y) {
        auto *ligne = reinterpret_cast<QRgb *>(image.scanLine(static_cast<int>(y)));
        const float force = vertical[y] * static_cast<float>(couleur.alpha());
        for (std::size_t x = 0; x < horizontal.size(); ++x)
            ligne[x] = parAlpha[static_cast<std::size_t>(qRound(force * horizontal[x]))];
    }
    image.setDevicePixelRatio(densite);
    return QPixmap::fromImage(std::move(image));
}

} // namespace Quillet
