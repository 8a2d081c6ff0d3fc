#pragma once

#include <QList>
#include <QWidget>

// A row of a table under a hairline. Rows that are given the same parts have their columns at the same places.
class RangeeDeTableau : public QWidget
{
    Q_OBJECT

public:
    struct Cellule
    {
        QWidget *contenu;
        int part; // of the row's width
    };

    explicit RangeeDeTableau(const QList<Cellule> &cellules, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};
