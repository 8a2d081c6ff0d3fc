#pragma once

#include "ui/tarifs/FeuilleDeReleve.h"

namespace Quillet {

struct Contexte;

// What La Poste's page changes, tier by tier, and the choice to keep it.
class CarteNouveauxTarifs : public FeuilleDeReleve
{
    Q_OBJECT

public:
    // To be opened while a reading is held.
    explicit CarteNouveauxTarifs(const Contexte &contexte, QWidget *parent = nullptr);
};

} // namespace Quillet
