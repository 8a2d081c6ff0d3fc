#include "ui/commande/Recapitulatif.h"

#include "composants/Pile.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Contexte.h"
#include "ui/commande/SectionDestination.h"
#include "ui/commande/SectionDocuments.h"
#include "ui/commande/SectionLien.h"
#include "ui/commande/SectionLivres.h"
#include "ui/commande/SectionMontants.h"
#include "ui/commande/SectionPoids.h"
#include "ui/commande/SectionReponse.h"

namespace Quillet {

namespace {

constexpr int largeurMinimale = 330;

} // namespace

Recapitulatif::Recapitulatif(const Contexte &contexte, QWidget *parent)
    : Defilement(parent),
      contexte_(contexte),
      livres_(new SectionLivres),
      poids_(new SectionPoids(contexte.donnees().reglages.emballages, contexte.commande)),
      destination_(new SectionDestination(contexte.donnees(), contexte.commande)),
      montants_(new SectionMontants(contexte.donnees().reglages)),
      lien_(new SectionLien(contexte.donnees(), contexte.commande)),
      documents_(new SectionDocuments),
      reponse_(new SectionReponse(contexte.commande))
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);

    QWidget *page =
        Pile::enColonne({.marges = {16, 24, 16, 28}, .espace = 22},
                        {livres_, poids_, destination_, montants_, lien_, documents_, reponse_, Pile::reste()});
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::AlternateBase);
    page->resize(size()); // any size: without one, setWidget lays the whole page out to find its own
    setWidget(page);

    connect(documents_, &SectionDocuments::demandes, this, &Recapitulatif::documentsDemandes);
    connect(reponse_, &SectionReponse::demandee, this, &Recapitulatif::reponseDemandee);
}

QSize Recapitulatif::minimumSizeHint() const
{
    return Defilement::minimumSizeHint().expandedTo({largeurMinimale, 0});
}

void Recapitulatif::montrer(const Calcul &calcul)
{
    livres_->montrer(calcul, TextesRecapitulatif::autresLivres(contexte_.donnees().livres, contexte_.bon()));
    poids_->montrer(calcul);
    destination_->montrer(calcul);
    montants_->montrer(calcul);
    lien_->montrer(calcul);
    documents_->montrer(calcul);
    reponse_->montrer(calcul);
}

} // namespace Quillet
