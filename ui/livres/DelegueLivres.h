#pragma once

#include <QFont>
#include <QStyledItemDelegate>

#include <optional>

namespace Quillet {

class ImagesCouvertures;
class ModeleLivres;
struct Livre;

// Draws a book as a slice of its seller's raised group; the first one also carries the group's title above it.
class DelegueLivres : public QStyledItemDelegate
{
    Q_OBJECT

public:
    DelegueLivres(const ModeleLivres &modele, ImagesCouvertures &images, QObject *parent = nullptr);

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &indice) const override;

    // Of the row's room, what the book itself takes.
    [[nodiscard]] QRect cadreDuLivre(QRect rangee, int rang) const;

private:
    void peindreTitre(QPainter &peintre, const QRect &cadre, const Livre &premier, const QPalette &palette) const;
    void peindreCarte(QPainter &peintre, const QRect &cadre, int rang, const QPalette &palette) const;
    void peindreLivre(QPainter &peintre, const QRect &cadre, int rang, const QPalette &palette) const;

    [[nodiscard]] int hauteurDuTexte() const;

    const ModeleLivres &modele_;
    ImagesCouvertures &images_;
    // Each row is asked for its height at each change of the catalogue; fonts are measured when the system's changes.
    mutable std::optional<QFont> mesuree_;
    mutable int hauteurDuTexte_ = 0;
};

} // namespace Quillet
