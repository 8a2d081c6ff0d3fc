#pragma once

#include "ui/tarifs/FeuilleDeReleve.h"

class Catalogue;
class Verifications;

// PayPal's fees in use beside those that its page shows, and the choice to keep them.
class CarteNouveauxFrais : public FeuilleDeReleve
{
    Q_OBJECT

public:
    // To be opened while a reading is held.
    CarteNouveauxFrais(Catalogue &catalogue, Verifications &verifications, QWidget *parent = nullptr);
};
