#pragma once

#include "ui/tarifs/TextesTarifs.h"

#include <QWidget>

// One grid on a raised card: its name, its countries, its tiers.
class CarteGrille : public QWidget
{
    Q_OBJECT

public:
    explicit CarteGrille(const TextesTarifs::Grille &grille, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;
};
