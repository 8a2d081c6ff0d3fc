#pragma once

#include <QColor>
#include <QList>
#include <QRectF>
#include <QString>

class QWidget;

namespace Quillet {

// A run of text as a widget paints it, on one line.
struct TextePeint
{
    const QWidget *widget;
    QString texte;
    QRectF encre;   // its ink; px of the page it was read from
    QRectF decoupe; // what the painter leaves of it
    QColor couleur;
    QPointF depart; // on its baseline
    double largeur;
};

// Every text of `page`, whoever draws it: labels, fields, delegates, hand-drawn widgets. In the order of painting.
QList<TextePeint> textesPeints(QWidget *page);

} // namespace Quillet
