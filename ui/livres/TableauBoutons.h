#pragma once

#include "composants/Tableau.h"
#include "textes/TextesBoutons.h"

#include <optional>

namespace Quillet {

class RangeeBouton;

// A book's PayPal buttons, one row a destination, in a raised group.
class TableauBoutons : public Tableau
{
    Q_OBJECT

public:
    explicit TableauBoutons(QWidget *parent = nullptr);
    void montrer(const QList<TextesBoutons::Ligne> &lignes);

signals:
    // The row's place in what was last shown.
    void reporter(int rang);
    void garder(int rang);
    // The last row that waited for the seller was dealt with.
    void termine();

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    [[nodiscard]] std::optional<int> rangeeTraitee(const QList<TextesBoutons::Ligne> &lignes) const;

    QList<RangeeBouton *> rangees_;
    QList<TextesBoutons::Ligne> lignes_; // as shown
};

} // namespace Quillet
