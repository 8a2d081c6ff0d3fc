#include "ui/commun/Choix.h"

#include <QWheelEvent>

Choix::Choix(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // the wheel must not take the focus either
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QComboBox::activated, this, [this] { emit choisi(currentData().toString()); });
}

void Choix::wheelEvent(QWheelEvent *evenement)
{
    evenement->ignore();
}
