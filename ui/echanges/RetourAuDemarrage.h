#pragma once

#include "echanges/Copies.h"
#include "model/Stockage.h"

namespace Quillet {

// Before there is a window: own data cannot be read, and a copy of them may take their place.
class RetourAuDemarrage
{
public:
    RetourAuDemarrage(const Stockage &stockage, const Preferences &preferences);

    // Whether there is a copy, and the data are the user's own.
    [[nodiscard]] bool possible() const { return !copies_.isEmpty(); }
    // Says what is wrong, and offers the copies. True: one of them stands there now. Throws RepriseInachevee.
    [[nodiscard]] bool accepte(const QString &raison) const;

private:
    void reprendre(const Copie &copie) const;

    Demeure demeure_;
    QList<Copie> copies_;
};

} // namespace Quillet
