#include "model/Livre.h"

ModificationLivre ModificationLivre::de(const Livre &livre)
{
    return {livre.prix, livre.poids, livre.disponible, livre.prixPaypal, livre.prixEcartes};
}

void ModificationLivre::appliquer(Livre &livre) const
{
    livre.prix = prix;
    livre.poids = poids;
    livre.disponible = disponible;
    livre.prixPaypal = prixPaypal;
    if (prixEcartes)
        livre.prixEcartes = prixEcartes;
}
