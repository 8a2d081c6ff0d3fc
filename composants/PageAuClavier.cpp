#include "composants/PageAuClavier.h"

#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace Quillet {

PageAuClavier::PageAuClavier(QWidget *parent) : Defilement(parent)
{
    LecteurDEcran::jouer(this, QAccessible::Document);
    setFocusPolicy(Qt::StrongFocus);
}

void PageAuClavier::keyPressEvent(QKeyEvent *touche)
{
    if (touche->key() == Qt::Key_Home)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    else if (touche->key() == Qt::Key_End)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    else
        Defilement::keyPressEvent(touche);
}

void PageAuClavier::focusInEvent(QFocusEvent *evenement)
{
    Defilement::focusInEvent(evenement);
    viewport()->update();
}

void PageAuClavier::focusOutEvent(QFocusEvent *evenement)
{
    Defilement::focusOutEvent(evenement);
    viewport()->update();
}

void PageAuClavier::paintEvent(QPaintEvent *evenement)
{
    Defilement::paintEvent(evenement);
    if (!Dessin::focusVisible(this))
        return;
    QPainter peintre(viewport());
    peintre.setRenderHint(QPainter::Antialiasing);
    Dessin::anneauDeFocus(peintre, QRectF(viewport()->rect()).adjusted(3, 3, -3, -3), Theme::rayonControle,
                          Theme::accentTexte(palette()));
}

} // namespace Quillet
