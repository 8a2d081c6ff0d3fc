#pragma once

#include "composants/Feuille.h"

#include <functional>

namespace Quillet {

// A sheet that shows what a check found: kept on demand, put off otherwise. Nothing changes before that.
class FeuilleDeReleve : public Feuille
{
    Q_OBJECT

public:
    using Feuille::Feuille;

protected:
    // `page`, then the buttons. `accepter` stores what was found; when it throws ErreurStockage the sheet stays open
    // and says why.
    void composer(QWidget *page, const QString &enregistrer, const std::function<void()> &accepter);
    // A page in place of a finding, with the one button that closes it.
    void composerVide(QWidget *page);
};

} // namespace Quillet
