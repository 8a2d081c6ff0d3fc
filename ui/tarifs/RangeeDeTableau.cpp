#include "ui/tarifs/RangeeDeTableau.h"

#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QPainter>

RangeeDeTableau::RangeeDeTableau(const QList<Cellule> &cellules, QWidget *parent) : QWidget(parent)
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
    QPainter(this).fillRect(0, 0, width(), 1, Theme::filet(palette()));
}
