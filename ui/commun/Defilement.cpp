#include "ui/commun/Defilement.h"

#include <QScrollBar>

Defilement::Defilement(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(40);
    setFocusPolicy(Qt::NoFocus);
}
