#pragma once

#include <QList>
#include <QWidget>

#include <optional>

class QGridLayout;

namespace Quillet {

// Rows of labels, figures or controls under the heads of their columns, each under a hairline. It is a table for who
// hears it, too (LectureDeTableau).
class Tableau : public QWidget
{
    Q_OBJECT

public:
    struct Colonne
    {
        QString tete;
        Qt::Alignment alignement = Qt::AlignLeft; // of the head
        int part = 0;                             // of the table's width; 0: what its cells ask for
        int retrait = 0;                          // px, of the head, from the right
        QString dite = tete;                      // the head, as it is heard
    };

    // `marge`: px, above and below each cell.
    explicit Tableau(const QList<Colonne> &colonnes, int marge = 6, QWidget *parent = nullptr);
    // One for each column.
    void ajouter(const QList<QWidget *> &contenus);
    void setLargeurMinimale(int colonne, int largeur);
    // Leaves the room of so many more columns, each of that part: its own are where those of a table with more are.
    void laisser(int colonnes, int part);
    // Row 0: the heads, which are heard all the same.
    void setRangeeVisible(int rangee, bool visible);

    [[nodiscard]] int colonnes() const { return colonnes_; }
    // Whether there is no row but the heads.
    [[nodiscard]] bool estVide() const;
    // Those that show, without the heads.
    [[nodiscard]] QList<int> rangees() const;
    [[nodiscard]] QWidget *cellule(int rangee, int colonne) const;

    struct Place
    {
        int rangee;
        int colonne;
    };
    // None for what is no cell.
    [[nodiscard]] std::optional<Place> place(QWidget *cellule) const;

    // Columns that share the width are all as wide as the one that needs the most: two tables with the same heads have
    // them at the same places.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void peindreLesFilets(QPainter &peintre) const;
    void paintEvent(QPaintEvent *evenement) override;

private:
    void placer(QWidget *contenu, Qt::Alignment alignement = {});

    QGridLayout *grille_; // filled row by row, the heads first
    int colonnes_;
    int marge_;
    int laissees_ = 0; // columns that another table has
};

} // namespace Quillet
