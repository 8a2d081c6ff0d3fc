#pragma once

#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace Quillet {

class CarteLivre;
class ImagesCouvertures;
class Ressort;

// Lies over the grid for the time of a change of seller: old cards fade and shrink, new ones fade and grow. The new
// cards below already answer to clicks and keys.
class TransitionCartes : public QWidget
{
    Q_OBJECT

public:
    struct Instantane
    {
        QPointer<CarteLivre> carte;
        QPixmap image;
        QRect place;
    };

    // Only of the cards that can be seen.
    static QList<Instantane> instantanes(const QList<CarteLivre *> &cartes);
    // Deletes itself when the motion is over. A picture that `images` reads meanwhile joins in.
    static void jouer(const QList<Instantane> &sortantes, const QList<Instantane> &entrantes,
                      const ImagesCouvertures &images, QWidget *grille);

    // Ends at once a motion over this grid, if there is one.
    static void arreter(QWidget *grille);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    TransitionCartes(const QList<Instantane> &sortantes, const QList<Instantane> &entrantes, QWidget *grille);
    void reprendre(const QString &couverture);

    QList<Instantane> sortantes_;
    QList<Instantane> entrantes_;
    Ressort *progres_;
};

} // namespace Quillet
