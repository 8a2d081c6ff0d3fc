#pragma once

#include "model/Preferences.h"
#include "ui/FeuilleDuJour.h"
#include "ui/documents/OngletDocuments.h"

class Catalogue;
class Commande;
class FicheDouane;
class FicheFacture;

// What goes with the parcel: the values of the customs form, and the invoice.
class VueDocuments : public FeuilleDuJour
{
    Q_OBJECT

public:
    VueDocuments(const Catalogue &catalogue, const Commande &commande, const Preferences &preferences,
                 Aujourdhui aujourdhui, OngletDocuments onglet, QWidget *parent = nullptr);

protected:
    void actualiser() final;

private:
    const Catalogue &catalogue_;
    const Commande &commande_;
    FicheDouane *douane_;
    FicheFacture *facture_;
};
