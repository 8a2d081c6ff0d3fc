#pragma once

#include "composants/AnnonceAuRepos.h"
#include "model/Suivi.h"
#include "ui/EcranDeRubrique.h"
#include "ui/documents/OngletDocuments.h"

class QPushButton;

namespace Quillet {

class EnTete;
class EtatVide;
class GrilleLivres;
class Recapitulatif;
class SelecteurSite;
struct Contexte;

// The order screen: the seller's books to click, and beside them what the order comes to.
class VueCommande : public EcranDeRubrique
{
    Q_OBJECT

public:
    explicit VueCommande(const Contexte &contexte, QWidget *parent = nullptr);
    [[nodiscard]] QList<Zone> zones() override;

private:
    QWidget *colonneDesLivres();
    void actualiser();
    void ouvrirLesDocuments(OngletDocuments onglet);
    void mettreLesVotres();
    void ouvrirLaReponse();
    void passerA(Etape etape);
    void noter(Etape etape);
    void vider();
    void rendre();

    const Contexte &contexte_;
    Suivi suivi_;
    EnTete *enTete_;
    QPushButton *reinitialiser_;
    SelecteurSite *selecteur_;
    GrilleLivres *grille_;
    QWidget *livres_; // the column around it
    EtatVide *sansLivre_;
    Recapitulatif *recapitulatif_;
    QString resume_; // as announced
    AnnonceAuRepos annonce_;
};

} // namespace Quillet
