#pragma once

#include <QScrollArea>

namespace Quillet {

// A page that scrolls downward only, as wide as its place, which is never narrower than it needs.
class Defilement : public QScrollArea
{
    Q_OBJECT

public:
    explicit Defilement(QWidget *parent = nullptr);
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
};

} // namespace Quillet
