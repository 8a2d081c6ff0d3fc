#pragma once

#include <QStringList>
#include <QWidget>

namespace Quillet {

// Keys drawn as caps: each text is one way, its keys joined by "+".
class Touches : public QWidget
{
    Q_OBJECT

public:
    explicit Touches(const QStringList &manieres, QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QList<QStringList> manieres_;
};

} // namespace Quillet
