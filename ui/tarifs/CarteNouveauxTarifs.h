#pragma once

#include "ui/tarifs/FeuilleDeReleve.h"

class Catalogue;
class Verifications;

// What La Poste's page changes, tier by tier, and the choice to keep it.
class CarteNouveauxTarifs : public FeuilleDeReleve
{
    Q_OBJECT

public:
    // To be opened while a reading is held.
    CarteNouveauxTarifs(Catalogue &catalogue, Verifications &verifications, QWidget *parent = nullptr);
};
