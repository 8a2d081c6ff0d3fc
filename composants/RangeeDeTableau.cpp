#include "composants/RangeeDeTableau.h"

#include "composants/Libelle.h"
#include "composants/Theme.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Quillet {

namespace {

constexpr int espace = 12;

} // namespace

QWidget *RangeeDeTableau::tete(const QString &texte, Qt::Alignment alignement)
{
    auto *tete = new Libelle(texte, Libelle::Rang::secondaire);
    tete->setFont(Theme::enGras(Theme::encadre()));
    tete->setWordWrap(true);
    tete->setAlignment(alignement | Qt::AlignBottom);
    return tete;
}

RangeeDeTableau::RangeeDeTableau(const QList<Cellule> &cellules, Filet filet, QWidget *parent)
    : QWidget(parent), cellules_(cellules), filet_(filet)
{
    auto *rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 6, 0, 6);
    rangee->setSpacing(espace);
    for (const auto &[contenu, part] : cellules) {
        // What a cell holds must not move its column; a head that wraps still takes the height it needs.
        QSizePolicy place = contenu->sizePolicy();
        place.setHorizontalPolicy(QSizePolicy::Ignored);
        contenu->setSizePolicy(place);
        rangee->addWidget(contenu, part);
    }
}

QSize RangeeDeTableau::minimumSizeHint() const
{
    int parts = 0;
    double parPart = 0;
    for (const auto &[contenu, part] : cellules_) {
        parts += part;
        parPart = std::max(parPart, double(contenu->minimumSizeHint().width()) / part);
    }
    const int largeur = static_cast<int>(std::ceil(parts * parPart)) + espace * static_cast<int>(cellules_.size() - 1);
    return {largeur, QWidget::minimumSizeHint().height()};
}

void RangeeDeTableau::paintEvent(QPaintEvent *)
{
    if (filet_ == Filet::dessus)
        QPainter(this).fillRect(0, 0, width(), 1, Theme::filet(palette()));
}

} // namespace Quillet
