#pragma once

#include <QCheckBox>

namespace Quillet {

class Ressort;

// An on/off switch; its label stands outside.
class Interrupteur : public QCheckBox
{
    Q_OBJECT

public:
    explicit Interrupteur(QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;

private:
    Ressort *position_;
};

} // namespace Quillet
