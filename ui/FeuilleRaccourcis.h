#pragma once

#include "composants/Feuille.h"

namespace Quillet {

// What keys do, screen by screen.
class FeuilleRaccourcis : public Feuille
{
    Q_OBJECT

public:
    explicit FeuilleRaccourcis(QWidget *parent);
};

} // namespace Quillet
