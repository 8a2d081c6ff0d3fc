#pragma once

#include "documents/MemoireFactures.h"
#include "model/Calcul.h"
#include "model/Catalogue.h"
#include "model/Commande.h"
#include "model/Historique.h"
#include "model/Preferences.h"
#include "ui/JourCourant.h"
#include "ui/couvertures/ImagesCouvertures.h"
#include "watch/Verifications.h"

namespace Quillet {

// What every screen is given, and outlives them: what they show, change and follow.
struct Contexte
{
    Catalogue &catalogue;
    Historique &historique;
    Commande &commande;
    MemoireFactures &factures;
    Verifications &verifications;
    ImagesCouvertures &images;
    JourCourant &jour;
    Preferences &preferences;

    [[nodiscard]] const Donnees &donnees() const { return catalogue.donnees(); }
    [[nodiscard]] const BonDeCommande &bon() const { return commande.bon(); }
    // Of the order in progress, today: never to be kept.
    [[nodiscard]] Calcul calcul() const { return Calcul::de(donnees(), bon(), jour.aujourdhui()); }
};

} // namespace Quillet
