#pragma once

#include "bench/fautes/Essai.h"

namespace Quillet {

// How the trials of one part ended.
struct Bilan
{
    int reussis = 0;
    int refuses = 0;
    int fautes = 0;

    // What a process that tried ended with: an Essai::Issue, or anything else when it could not end. False for a fault.
    bool compter(int fin)
    {
        const bool reussi = fin == int(Essai::Issue::reussi);
        const bool refuse = fin == int(Essai::Issue::refuse);
        ++(reussi ? reussis : refuse ? refuses : fautes);
        return reussi || refuse;
    }
    [[nodiscard]] QByteArray texte() const
    {
        return QStringLiteral("%1 réussis, %2 refusés, %3 fautes").arg(reussis).arg(refuses).arg(fautes).toUtf8();
    }
};

} // namespace Quillet
