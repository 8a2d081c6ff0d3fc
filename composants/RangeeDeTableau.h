#pragma once

#include <QList>
#include <QWidget>

namespace Quillet {

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

    // So that each cell shows its text whole, or its longest word where it wraps.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QList<Cellule> cellules_;
    Filet filet_;
};

} // namespace Quillet
