#include "composants/DessinAscenseur.h"

#include "composants/Dessin.h"

#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace Quillet {

namespace {

QRect poignee(const QStyleOptionSlider &option)
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const int longueur = horizontal ? option.rect.width() : option.rect.height();
    const qint64 etendue = qint64{option.maximum} - option.minimum + option.pageStep;
    const int taille = etendue > 0 ? std::clamp(static_cast<int>(qint64{longueur} * option.pageStep / etendue),
                                                std::min(32, longueur), longueur)
                                   : longueur;
    const int debut = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      longueur - taille, option.upsideDown);
    return horizontal ? QRect(option.rect.x() + debut, option.rect.y(), taille, option.rect.height())
                      : QRect(option.rect.x(), option.rect.y() + debut, option.rect.width(), taille);
}

} // namespace

void DessinAscenseur::peindre(QPainter &peintre, const QStyleOptionSlider &option)
{
    if (option.maximum <= option.minimum)
        return;
    const bool saisi = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QRectF barre = QRectF(poignee(option)).adjusted(3, 3, -3, -3);
    Dessin::aplat(peintre, barre, std::min(barre.width(), barre.height()) / 2,
                  Dessin::transparente(option.palette.color(QPalette::WindowText), saisi ? 0.45 : 0.22));
}

QRect DessinAscenseur::partie(const QStyleOptionSlider &option, QStyle::SubControl partie)
{
    const QRect milieu = poignee(option);
    const bool horizontal = option.orientation == Qt::Horizontal;
    QRect avant = option.rect;
    QRect apres = option.rect;
    horizontal ? avant.setRight(milieu.left() - 1) : avant.setBottom(milieu.top() - 1);
    horizontal ? apres.setLeft(milieu.right() + 1) : apres.setTop(milieu.bottom() + 1);
    switch (partie) {
    case QStyle::SC_ScrollBarSlider:
        return milieu;
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    case QStyle::SC_ScrollBarSubPage:
        return avant;
    case QStyle::SC_ScrollBarAddPage:
        return apres;
    default:
        return {};
    }
}

} // namespace Quillet
