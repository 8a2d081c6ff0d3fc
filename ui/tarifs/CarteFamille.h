#pragma once

#include "textes/TextesTarifs.h"

#include <QWidget>

namespace Quillet {

// The grids of a family as one table on a raised card: tiers in rows, zones in columns.
class CarteFamille : public QWidget
{
    Q_OBJECT

public:
    explicit CarteFamille(const TextesTarifs::Famille &famille, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};

} // namespace Quillet
