#pragma once

#include <QStyledItemDelegate>

class ImagesCouvertures;
class ModeleLivres;

// Draws a row of the books' table: the small cover, the title over its author, then the figures.
class DelegueLivres : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int hauteurDeLigne = 84;

    DelegueLivres(const ModeleLivres &modele, ImagesCouvertures &images, QObject *parent = nullptr);

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const override;
    // As wide as its text, so that the columns can size themselves.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &indice) const override;

private:
    void peindreLivre(QPainter &peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const;
    void peindreTexte(QPainter &peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const;

    const ModeleLivres &modele_;
    ImagesCouvertures &images_;
};
