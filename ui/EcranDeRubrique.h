#pragma once

#include <QList>
#include <QWidget>

namespace Quillet {

// What a section shows beside the sidebar.
class EcranDeRubrique : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Asked before the screen is left or the window closes: ends the edit under way. False when it could not be kept,
    // which the screen says.
    [[nodiscard]] virtual bool conclure() { return true; }

    // A part of the screen, and where the focus goes in it: to that widget, else within it.
    struct Zone
    {
        QWidget *aire;
        QWidget *entree;
    };
    // In the order in which they are read.
    [[nodiscard]] virtual QList<Zone> zones() { return {{this, this}}; }
};

} // namespace Quillet
