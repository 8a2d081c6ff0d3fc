#pragma once

#include "composants/ChoixSegmente.h"
#include "model/Langue.h"

namespace Quillet {

// The language in which the buyer is answered.
class ChoixLangue : public ChoixSegmente
{
    Q_OBJECT

public:
    explicit ChoixLangue(QWidget *parent = nullptr);
    void montrer(Langue langue);

signals:
    void choisie(Langue langue);
};

} // namespace Quillet
