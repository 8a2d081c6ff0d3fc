#pragma once

#include "model/Echec.h"

namespace Quillet {

// Why an update could not be found or was not taken: the whole sentence that the user reads. `detail` is a short
// phrase in lower case.
class ErreurMiseAJour : public Echec
{
public:
    // The feed is not what it should be.
    static ErreurMiseAJour listeIllisible(const QString &detail)
    {
        return ErreurMiseAJour(QStringLiteral("La liste des mises à jour est illisible : %1.").arg(detail));
    }
    // Nothing can be learnt from it, though it may well read.
    static ErreurMiseAJour inconnue(const QString &detail)
    {
        return ErreurMiseAJour(QStringLiteral("Impossible de savoir s’il y a une mise à jour : %1.").arg(detail));
    }
    // What it offers must not be installed.
    static ErreurMiseAJour refusee(const QString &detail)
    {
        return ErreurMiseAJour(QStringLiteral("Mise à jour refusée : %1.").arg(detail));
    }

private:
    explicit ErreurMiseAJour(const QString &texte) : Echec(texte) {}
};

} // namespace Quillet
