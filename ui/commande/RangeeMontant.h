#pragma once

#include "composants/Formulaire.h"
#include "composants/NombreRoulant.h"

namespace Quillet {

// A row of the summary whose value is a figure that rolls over.
struct RangeeMontant
{
    explicit RangeeMontant(const QString &libelle = {})
        : montant(new NombreRoulant), rangee(new Formulaire::Rangee(libelle, montant))
    {
    }

    NombreRoulant *montant;
    Formulaire::Rangee *rangee; // owned by the group it is put into
};

} // namespace Quillet
