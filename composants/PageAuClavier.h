#pragma once

#include "composants/Defilement.h"

namespace Quillet {

// A page that is read more than worked: it takes the focus itself, so that the keys scroll it.
class PageAuClavier : public Defilement
{
    Q_OBJECT

public:
    explicit PageAuClavier(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *touche) override;
    void focusInEvent(QFocusEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;
};

} // namespace Quillet
