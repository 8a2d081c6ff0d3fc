#pragma once

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
};

} // namespace Quillet
