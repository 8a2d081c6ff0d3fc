#pragma once

#include "model/Calcul.h"
#include "model/Suivi.h"
#include "ui/EcranDeRubrique.h"
#include "ui/documents/OngletDocuments.h"

#include <QWidget>

namespace Quillet {

class Defilement;
class PiedDeCommande;
class SectionDestination;
class SectionDocuments;
class SectionLien;
class SectionLivres;
class SectionMontants;
class SectionPoids;
class SectionReponse;
struct Contexte;

// The side panel: everything that follows from the order, and the choices that complete it; below them, always in
// sight, what it comes to. Its widgets are built once; `montrer` brings them up to date.
class Recapitulatif : public QWidget
{
    Q_OBJECT

public:
    // `suivi` is read each time the panel is brought up to date.
    Recapitulatif(const Contexte &contexte, const Suivi &suivi, QWidget *parent = nullptr);

    void montrer(const Calcul &calcul);
    // Its page, then its foot.
    [[nodiscard]] QList<EcranDeRubrique::Zone> zones() const;
    // The focus goes to what undoes the emptying.
    void proposerDAnnuler();
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void documentsDemandes(OngletDocuments onglet);
    void etapeDemandee(Etape etape);
    void copie(const TexteACopier &texte);
    void annulationDemandee();

private:
    const Contexte &contexte_;
    const Suivi &suivi_;
    bool vide_ = true; // as shown last
    SectionLivres *livres_;
    SectionPoids *poids_;
    SectionDestination *destination_;
    SectionMontants *montants_;
    SectionLien *lien_;
    SectionDocuments *documents_;
    SectionReponse *reponse_;
    Defilement *defilement_;
    PiedDeCommande *pied_;
};

} // namespace Quillet
