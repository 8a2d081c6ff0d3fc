#pragma once

#include <QHash>
#include <QLabel>

// A plain text that takes its colour from the palette by its rank, and keeps it when the palette changes.
class Libelle : public QLabel
{
    Q_OBJECT

public:
    enum class Rang { principal, secondaire };

    explicit Libelle(const QString &texte, Rang rang = Rang::principal, QWidget *parent = nullptr);
    void setRang(Rang rang);

    // A text that wraps takes the width it is given: QLabel would try many widths to find a pleasing one.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    // Remembered: a layout asks for the same few widths again and again.
    [[nodiscard]] int heightForWidth(int offerte) const override;

protected:
    void changeEvent(QEvent *evenement) override;

private:
    mutable QString texteMesure_;
    mutable QHash<int, int> hauteurs_; // of `texteMesure_`, by width
};
