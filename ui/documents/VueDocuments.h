#pragma once

#include "composants/Feuille.h"
#include "model/Preferences.h"
#include "ui/documents/OngletDocuments.h"

class Catalogue;
class Commande;
class FicheDouane;
class FicheFacture;
class JourCourant;

// What goes with the parcel: the values of the customs form, and the invoice.
class VueDocuments : public Feuille
{
    Q_OBJECT

public:
    VueDocuments(const Catalogue &catalogue, const Commande &commande, const Preferences &preferences,
                 JourCourant &jour, OngletDocuments onglet, QWidget *parent = nullptr);

private:
    void actualiser();

    const Catalogue &catalogue_;
    const Commande &commande_;
    JourCourant &jour_;
    FicheDouane *douane_;
    FicheFacture *facture_;
};
