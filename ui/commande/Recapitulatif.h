#pragma once

#include "composants/Defilement.h"
#include "model/Calcul.h"
#include "ui/documents/OngletDocuments.h"

namespace Quillet {

class SectionDestination;
class SectionDocuments;
class SectionLien;
class SectionLivres;
class SectionMontants;
class SectionPoids;
class SectionReponse;
struct Contexte;

// The side panel: everything that follows from the order, and the choices that complete it. Its widgets are built
// once; `montrer` brings them up to date.
class Recapitulatif : public Defilement
{
    Q_OBJECT

public:
    explicit Recapitulatif(const Contexte &contexte, QWidget *parent = nullptr);

    void montrer(const Calcul &calcul);
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void documentsDemandes(OngletDocuments onglet);
    void reponseDemandee();

private:
    const Contexte &contexte_;
    SectionLivres *livres_;
    SectionPoids *poids_;
    SectionDestination *destination_;
    SectionMontants *montants_;
    SectionLien *lien_;
    SectionDocuments *documents_;
    SectionReponse *reponse_;
};

} // namespace Quillet
