#pragma once

#include "composants/AnnonceAuRepos.h"
#include "model/Preferences.h"
#include "ui/documents/OngletDocuments.h"

#include <QWidget>

class Catalogue;
class Commande;
class EnTete;
class EtatVide;
class GrilleLivres;
class ImagesCouvertures;
class JourCourant;
class QPushButton;
class Recapitulatif;
class SelecteurSite;

// The order screen: the seller's books to click, and beside them what the order comes to.
class VueCommande : public QWidget
{
    Q_OBJECT

public:
    VueCommande(const Catalogue &catalogue, Commande &commande, ImagesCouvertures &images, Preferences preferences,
                JourCourant &jour, QWidget *parent = nullptr);

private:
    QWidget *colonneDesLivres();
    void actualiser();
    void ouvrirLesDocuments(OngletDocuments onglet);
    void ouvrirLaReponse();

    const Catalogue &catalogue_;
    Commande &commande_;
    Preferences preferences_;
    JourCourant &jour_;
    EnTete *enTete_;
    QPushButton *reinitialiser_;
    SelecteurSite *selecteur_;
    GrilleLivres *grille_;
    EtatVide *sansLivre_;
    Recapitulatif *recapitulatif_;
    QString resume_; // as announced
    AnnonceAuRepos annonce_;
};
