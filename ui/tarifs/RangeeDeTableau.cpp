#include "ui/tarifs/RangeeDeTableau.h"

#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QPainter>

RangeeDeTableau::RangeeDeTableau(const QList<Cellule> &cellules, Filet filet, QWidget *parent)
    : QWidget(parent), filet_(filet)
{
    auto *rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 6, 0, 6);
    rangee->setSpacing(12);
    for (const auto &[contenu, part] : cellules) {
        // What a cell holds must not move its column.
        contenu->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        rangee->addWidget(contenu, part);
    }
}

void RangeeDeTableau::paintEvent(QPaintEvent *)
{
    if (filet_ == Filet::dessus)
        QPainter(this).fillRect(0, 0, width(), 1, Theme::filet(palette()));
}
