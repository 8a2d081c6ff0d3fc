#pragma once

#include "model/Livre.h"

#include <QList>
#include <QPointF>
#include <QWidget>

#include <optional>

namespace Quillet {

class CarteLivre;
class ClavierDeLaGrille;
class Commande;
class ImagesCouvertures;

// The chosen seller's cards, in as many columns as the width holds.
class GrilleLivres : public QWidget
{
    Q_OBJECT

public:
    // `precedent` is the control that the Tab key reaches just before the cards.
    GrilleLivres(Commande &commande, ImagesCouvertures &images, QWidget *precedent, QWidget *parent = nullptr);

    // Cards of other books enter and leave with a fade; the same books are only brought up to date.
    // Of one seller; `vendu` says by whom.
    void montrer(const QList<Livre> &livres, const QString &vendu);

    // The cover where the keyboard was last, or the first; null when there is none.
    [[nodiscard]] QWidget *arret() const;

    // Lifts the cover that the pointer is over, and no other. Called when the cards have moved under it.
    void suivreLePointeur();

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int largeur) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    // The narrowest width that still holds two columns.
    [[nodiscard]] static int largeurDeDeuxColonnes();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;
    void hideEvent(QHideEvent *evenement) override;

private:
    void remplacerLesCartes(const QList<Livre> &livres, const QString &vendu);
    void placer();

    Commande &commande_;
    ImagesCouvertures &images_;
    QWidget *precedent_;
    QList<CarteLivre *> cartes_;
    ClavierDeLaGrille *clavier_;
    std::optional<QPointF> pointeur_; // on the screen; none when it is not over the window
};

} // namespace Quillet
