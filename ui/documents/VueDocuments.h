#pragma once

#include "composants/Feuille.h"
#include "ui/documents/OngletDocuments.h"

namespace Quillet {

class FicheDouane;
class FicheFacture;
struct Contexte;

// What goes with the parcel: the values of the customs form, and the invoice.
class VueDocuments : public Feuille
{
    Q_OBJECT

public:
    VueDocuments(const Contexte &contexte, OngletDocuments onglet, QWidget *parent = nullptr);

private:
    void actualiser();

    const Contexte &contexte_;
    FicheDouane *douane_;
    FicheFacture *facture_;
};

} // namespace Quillet
