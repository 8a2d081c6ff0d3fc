#pragma once

#include "composants/Formulaire.h"
#include "composants/NombreRoulant.h"
#include "model/Format.h"

namespace Quillet {

// A row of the summary whose value is a figure that rolls over.
struct RangeeMontant
{
    explicit RangeeMontant(const QString &libelle = {})
        : montant(new NombreRoulant), rangee(new Formulaire::Rangee(libelle, montant))
    {
    }

    static void afficher(NombreRoulant *nombre, const std::optional<Centimes> &montant)
    {
        const QString texte = Format::euros(montant);
        nombre->afficher(texte, 1, Format::dit(texte));
    }
    void afficher(const std::optional<Centimes> &valeur) const { afficher(montant, valeur); }

    NombreRoulant *montant;
    Formulaire::Rangee *rangee; // owned by the group it is put into
};

} // namespace Quillet
