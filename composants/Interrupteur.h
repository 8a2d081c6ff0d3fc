#pragma once

#include <QCheckBox>
#include <QColor>

#include <optional>

namespace Quillet {

class Ressort;

// An on/off switch; its label stands outside.
class Interrupteur : public QCheckBox
{
    Q_OBJECT

public:
    // Without a colour for when it is on, it takes the accent.
    explicit Interrupteur(std::optional<QColor> allume = std::nullopt, QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;

private:
    std::optional<QColor> allume_; // none: the accent
    Ressort *position_;
};

} // namespace Quillet
