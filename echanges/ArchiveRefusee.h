#pragma once

#include "model/Echec.h"

namespace Quillet {

// An archive is not taken, for this reason.
class ArchiveRefusee : public Echec
{
public:
    explicit ArchiveRefusee(const QString &raison)
        : Echec(QStringLiteral("Cette archive ne peut pas être reprise : %1.").arg(raison))
    {
    }
};

} // namespace Quillet
