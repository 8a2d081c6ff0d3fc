#pragma once

#include "ui/Aujourdhui.h"
#include "ui/tarifs/TextesTarifs.h"

#include <QWidget>

class Catalogue;
class EnTete;
class QScrollArea;

// The grids in force, by family of destinations.
class VueTarifs : public QWidget
{
    Q_OBJECT

public:
    VueTarifs(const Catalogue &catalogue, Aujourdhui aujourdhui, QWidget *parent = nullptr);

protected:
    bool event(QEvent *evenement) override;

private:
    void actualiser();

    const Catalogue &catalogue_;
    Aujourdhui aujourdhui_;
    EnTete *enTete_;
    QScrollArea *defilement_;
    QList<TextesTarifs::Famille> familles_; // as shown
};
