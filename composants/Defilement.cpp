#include "composants/Defilement.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace Quillet {

Defilement::Defilement(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(40);
    setFocusPolicy(Qt::NoFocus);
    // Qt follows Tab only: a focus that a control hands on must not go out of sight either.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, QWidget *nouveau) {
        if (nouveau && widget() && widget()->isAncestorOf(nouveau)
            && window()->testAttribute(Qt::WA_KeyboardFocusChange))
            ensureWidgetVisible(nouveau);
    });
}

QSize Defilement::minimumSizeHint() const
{
    const QSize aire = QScrollArea::minimumSizeHint();
    if (!widget())
        return aire;
    const int ascenseur = verticalScrollBar()->sizeHint().width(); // it comes with the page's length
    return {std::max(aire.width(), widget()->minimumSizeHint().width() + ascenseur), aire.height()};
}

bool Defilement::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet == widget() && evenement->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(objet, evenement);
}

} // namespace Quillet
