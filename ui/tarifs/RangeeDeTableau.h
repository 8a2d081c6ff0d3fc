#pragma once

#include <QList>
#include <QWidget>

// A row of a table, under a hairline unless it is the first. Rows that are given the same parts have their columns at
// the same places.
class RangeeDeTableau : public QWidget
{
    Q_OBJECT

public:
    struct Cellule
    {
        QWidget *contenu;
        int part; // of the row's width
    };

    enum class Filet { aucun, dessus };

    // The head of a column.
    static QWidget *tete(const QString &texte, Qt::Alignment alignement);

    explicit RangeeDeTableau(const QList<Cellule> &cellules, Filet filet = Filet::dessus, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    Filet filet_;
};
