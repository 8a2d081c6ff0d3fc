#pragma once

#include "textes/TextesTarifs.h"

#include <QWidget>

namespace Quillet {

// The grids of a family as one table on a raised card: tiers in rows, zones in columns.
class CarteFamille : public QWidget
{
    Q_OBJECT

public:
    // `zones`: the most that a family of the page has; all their columns are in line.
    CarteFamille(const TextesTarifs::Famille &famille, qsizetype zones, QWidget *parent = nullptr);
    // A row of another card, its value in line with the first zone.
    static QWidget *enLigne(QWidget *rangee, qsizetype zones);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};

} // namespace Quillet
