#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QPainter;

// Our own one-colour symbols, by their keys ("shippingbox", "minus"…), sharp at any pixel density.
namespace Quillet::Icone {

void peindre(QPainter &peintre, const QString &symbole, const QRectF &cadre, const QColor &couleur);
// Drawn in the palette's colour at the moment of painting: it follows light and dark.
QIcon icone(const QString &symbole);

} // namespace Quillet::Icone
