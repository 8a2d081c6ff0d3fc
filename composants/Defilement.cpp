#include "composants/Defilement.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace Quillet {

Defilement::Defilement(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(40);
    setFocusPolicy(Qt::NoFocus);
    // Qt follows Tab only: a focus that a control hands on must not go out of sight either. Neither what a hand points
    // at nor what was left for another window moves.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *ancien, QWidget *nouveau) {
        if (!nouveau || !widget() || !widget()->isAncestorOf(nouveau))
            return;
        if (!window()->testAttribute(Qt::WA_KeyboardFocusChange)
            && (!ancien || QGuiApplication::mouseButtons() != Qt::NoButton))
            return;
        ensureWidgetVisible(nouveau);
        QTimer::singleShot(0, nouveau, [this, nouveau] { // once all that came with it has its place
            if (nouveau->hasFocus())
                ensureWidgetVisible(nouveau);
        });
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
