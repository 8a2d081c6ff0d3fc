#include "ui/tarifs/RangeeDeTableau.h"

#include "ui/Theme.h"
#include "ui/commun/Libelle.h"

#include <QHBoxLayout>
#include <QPainter>

QWidget *RangeeDeTableau::tete(const QString &texte, Qt::Alignment alignement)
{
    auto *tete = new Libelle(texte, Libelle::Rang::secondaire);
    tete->setFont(Theme::enGras(Theme::encadre()));
    tete->setWordWrap(true);
    tete->setAlignment(alignement | Qt::AlignBottom);
    return tete;
}

RangeeDeTableau::RangeeDeTableau(const QList<Cellule> &cellules, Filet filet, QWidget *parent)
    : QWidget(parent), filet_(filet)
{
    auto *rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 6, 0, 6);
    rangee->setSpacing(12);
    for (const auto &[contenu, part] : cellules) {
        // What a cell holds must not move its column; a head that wraps still takes the height it needs.
        QSizePolicy place = contenu->sizePolicy();
        place.setHorizontalPolicy(QSizePolicy::Ignored);
        contenu->setSizePolicy(place);
        rangee->addWidget(contenu, part);
    }
}

void RangeeDeTableau::paintEvent(QPaintEvent *)
{
    if (filet_ == Filet::dessus)
        QPainter(this).fillRect(0, 0, width(), 1, Theme::filet(palette()));
}
