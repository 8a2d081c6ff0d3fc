#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QRectF>

class QPainter;
class QWidget;

// Shapes that several widgets paint alike.
namespace Quillet::Dessin {

// From `a` (part 0) to `b` (part 1); a spring may overshoot, the colour does not.
QColor melange(const QColor &a, const QColor &b, double part);

// The colour with this opacity, 0 to 1.
QColor transparente(QColor couleur, double opacite);

// A rounded rectangle of one colour, without an outline.
void aplat(QPainter &peintre, const QRectF &cadre, qreal rayon, const QColor &couleur);

// On a screen at 125 %, lines of one px would be one of the device's here and two there: these are as wide everywhere.
// The width of a hairline, px.
qreal trait(const QPainter &peintre);
// The frame, moved onto the device's own pixels.
QRectF surLesPixels(const QPainter &peintre, const QRectF &cadre);
// A hairline from here to the right.
void filet(QPainter &peintre, const QPointF &debut, qreal longueur, const QPalette &palette);
// Rounded, with a hairline around.
void encadre(QPainter &peintre, const QRectF &cadre, qreal rayon, const QColor &fond, const QColor &contour);

// A raised group.
void carte(QPainter &peintre, const QRect &cadre, const QPalette &palette);

struct Etiquette
{
    QFont police;
    QSize marges; // around the text, both sides together, px
    qreal rayon;
    QColor encre;
    QColor fond;
};
// A text in a capsule at the right end of a line; where it starts, px.
int etiquette(QPainter &peintre, const QRect &ligne, const QString &texte, const Etiquette &apparence);

// Whether the ring is due: the widget has the focus and the keyboard brought it there.
bool focusVisible(const QWidget *widget);
inline constexpr qreal epaisseurDAnneau = 2; // px
// Drawn just inside `contour`, whose corners have this radius.
void anneauDeFocus(QPainter &peintre, const QRectF &contour, qreal rayon, const QColor &couleur);

// The soft shadow close under a raised capsule.
void ombreDouce(QPainter &peintre, const QRectF &capsule);

// The blurred shadow of a rectangle, with `rayon` of room on every side of it, both px; `densite`: of the device, per
// px.
QPixmap ombre(const QSizeF &taille, qreal rayon, const QColor &couleur, qreal densite);

} // namespace Quillet::Dessin
