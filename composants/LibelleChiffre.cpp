#include "composants/LibelleChiffre.h"

#include "composants/Chiffres.h"

#include <QPainter>

namespace Quillet {

LibelleChiffre::LibelleChiffre(const QString &texte, Rang rang, QWidget *parent) : Libelle(texte, rang, parent)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QSize LibelleChiffre::sizeHint() const
{
    return {Chiffres::largeur(fontMetrics(), text()), fontMetrics().height()};
}

QSize LibelleChiffre::minimumSizeHint() const
{
    return sizeHint();
}

void LibelleChiffre::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setPen(palette().color(foregroundRole()));
    Chiffres::peindre(peintre, contentsRect(), alignment(), text());
}

} // namespace Quillet
