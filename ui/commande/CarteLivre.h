#pragma once

#include "model/Livre.h"

#include <QWidget>

namespace Quillet {

class Commande;
class Couverture;
class ImagesCouvertures;
class SelecteurQuantite;

// One book on the order screen. What it shows stands `Couverture::debord` pixels inside the widget.
class CarteLivre : public QWidget
{
    Q_OBJECT

public:
    CarteLivre(const Livre &livre, const QString &vendu, Commande &commande, ImagesCouvertures &images,
               QWidget *parent = nullptr);

    [[nodiscard]] const Livre &livre() const { return livre_; }
    void montrer(const Livre &livre, const QString &vendu, int quantite);
    // So many copies in the order; of a sold-out book, the number stays.
    void compter(int exemplaires);
    [[nodiscard]] int quantite() const { return quantite_; }
    [[nodiscard]] Couverture *couverture() const { return couverture_; }

    // Whether a place in the card's own pixels is on what it shows.
    [[nodiscard]] bool contient(const QPoint &place) const;
    void soulever(bool oui);

    // Height of what a card shows, for the width of what it shows, px.
    [[nodiscard]] static int hauteur(int largeur);
    // The narrowest on which a usual price stands beside its stepper at full size, px.
    [[nodiscard]] static int largeurMinimale();

protected:
    bool event(QEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;

private:
    void placer();
    [[nodiscard]] QRect contenu() const;
    [[nodiscard]] QRect ligneDuBas() const;

    Livre livre_;
    QString vendu_; // by whom, in words
    Commande &commande_;
    int quantite_ = -1; // shown; -1: nothing yet
    Couverture *couverture_;
    SelecteurQuantite *selecteur_;
};

} // namespace Quillet
