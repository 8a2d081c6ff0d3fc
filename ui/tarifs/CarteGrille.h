#pragma once

#include "ui/tarifs/TextesTarifs.h"

#include <QWidget>

// One grid on a raised card: its name, its tiers, and the countries at the foot, so that the tiers of two cards side by
// side stay level.
class CarteGrille : public QWidget
{
    Q_OBJECT

public:
    // The tiers fill one column after the other.
    CarteGrille(const TextesTarifs::Grille &grille, int colonnes, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};
