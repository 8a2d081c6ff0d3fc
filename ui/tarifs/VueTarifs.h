#pragma once

#include "ui/Aujourdhui.h"

#include <QWidget>

class Catalogue;
class Defilement;
class EnTete;

// The grids in force, by family of destinations.
class VueTarifs : public QWidget
{
    Q_OBJECT

public:
    VueTarifs(const Catalogue &catalogue, Aujourdhui aujourdhui, QWidget *parent = nullptr);

private:
    void actualiser();

    const Catalogue &catalogue_;
    Aujourdhui aujourdhui_;
    EnTete *enTete_;
    Defilement *defilement_;
};
