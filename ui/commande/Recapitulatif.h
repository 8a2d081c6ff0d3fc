#pragma once

#include "model/Calcul.h"
#include "model/Preferences.h"
#include "ui/Aujourdhui.h"
#include "ui/commun/Defilement.h"

enum class OngletDocuments;
class SectionDestination;
class SectionDocuments;
class SectionLien;
class SectionLivres;
class SectionMontants;
class SectionPoids;
class SectionReponse;

// The side panel: everything that follows from the order, and the choices that complete it. Its widgets are built
// once; `montrer` brings them up to date. From here open the documents and the reply.
class Recapitulatif : public Defilement
{
    Q_OBJECT

public:
    Recapitulatif(const Catalogue &catalogue, Commande &commande, const Preferences &preferences, Aujourdhui aujourdhui,
                  QWidget *parent = nullptr);

    void montrer(const Calcul &calcul);

private:
    void ouvrirLesDocuments(OngletDocuments onglet);
    void ouvrirLaReponse();

    const Catalogue &catalogue_;
    Commande &commande_;
    Preferences preferences_;
    Aujourdhui aujourdhui_;
    SectionLivres *livres_;
    SectionPoids *poids_;
    SectionDestination *destination_;
    SectionMontants *montants_;
    SectionLien *lien_;
    SectionDocuments *documents_;
    SectionReponse *reponse_;
};
