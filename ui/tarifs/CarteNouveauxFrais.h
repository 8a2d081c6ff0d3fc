#pragma once

#include "ui/tarifs/FeuilleDeReleve.h"

namespace Quillet {

struct Contexte;

// PayPal's fees in use beside those that its page shows, and the choice to keep them.
class CarteNouveauxFrais : public FeuilleDeReleve
{
    Q_OBJECT

public:
    // To be opened while a reading is held.
    explicit CarteNouveauxFrais(const Contexte &contexte, QWidget *parent = nullptr);
};

} // namespace Quillet
