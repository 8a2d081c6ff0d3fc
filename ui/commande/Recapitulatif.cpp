#include "ui/commande/Recapitulatif.h"

#include "composants/Defilement.h"
#include "composants/Pile.h"
#include "documents/ReponseType.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Contexte.h"
#include "ui/commande/PiedDeCommande.h"
#include "ui/commande/SectionDestination.h"
#include "ui/commande/SectionDocuments.h"
#include "ui/commande/SectionLien.h"
#include "ui/commande/SectionLivres.h"
#include "ui/commande/SectionMontants.h"
#include "ui/commande/SectionPoids.h"
#include "ui/commande/SectionReponse.h"

#include <QScrollBar>

#include <utility>

namespace Quillet {

namespace {

constexpr int largeurMinimale = 330;
constexpr int espace = 22; // between the sections

} // namespace

Recapitulatif::Recapitulatif(const Contexte &contexte, const Suivi &suivi, QWidget *parent)
    : QWidget(parent),
      contexte_(contexte),
      suivi_(suivi),
      livres_(new SectionLivres),
      poids_(new SectionPoids(contexte.donnees(), contexte.commande)),
      destination_(new SectionDestination(contexte.donnees(), contexte.commande)),
      montants_(new SectionMontants(contexte.donnees().reglages)),
      lien_(new SectionLien(contexte.donnees(), contexte.commande, suivi)),
      documents_(new SectionDocuments),
      reponse_(new SectionReponse(contexte.commande)),
      defilement_(new Defilement),
      pied_(new PiedDeCommande)
{
    defilement_->setAutoFillBackground(true);
    defilement_->setBackgroundRole(QPalette::AlternateBase);

    QWidget *page =
        Pile::enColonne({.marges = {16, 24, 16, 28}, .espace = espace},
                        {livres_, poids_, destination_, montants_, lien_, documents_, reponse_, Pile::reste()});
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::AlternateBase);
    page->resize(size()); // any size: without one, setWidget lays the whole page out to find its own
    defilement_->setWidget(page);
    Pile::colonne(this, {.espace = 0}, {{defilement_, 1}, pied_});

    connect(
        destination_, &SectionDestination::remarquee, this,
        [this](QWidget *remarque) { defilement_->ensureWidgetVisible(remarque); },
        Qt::QueuedConnection); // once it has its place
    connect(documents_, &SectionDocuments::demandes, this, &Recapitulatif::documentsDemandes);
    connect(lien_, &SectionLien::creationDemandee, this, [this] { emit etapeDemandee(Etape::lien); });
    connect(lien_, &SectionLien::copie, this, &Recapitulatif::copie);
    connect(lien_, &SectionLien::copieALaSuite, this, [this](QWidget *rangee) {
        defilement_->ensureWidgetVisible(rangee); // the keys may come from anywhere
    });
    connect(reponse_, &SectionReponse::demandee, this, [this] { emit etapeDemandee(Etape::reponse); });
    connect(pied_, &PiedDeCommande::etapeDemandee, this, [this](Etape etape) {
        if (etape == Etape::lien) // PayPal's page will ask for its texts
            defilement_->verticalScrollBar()->setValue(lien_->y() - espace);
        emit etapeDemandee(etape);
    });
    connect(pied_, &PiedDeCommande::annulationDemandee, this, &Recapitulatif::annulationDemandee);
}

QList<EcranDeRubrique::Zone> Recapitulatif::zones() const
{
    return {{defilement_, defilement_}, {pied_, pied_}};
}

QSize Recapitulatif::minimumSizeHint() const
{
    return QWidget::minimumSizeHint().expandedTo({largeurMinimale, 0});
}

void Recapitulatif::montrer(const Calcul &calcul)
{
    livres_->montrer(calcul, TextesRecapitulatif::autresLivres(contexte_.donnees(), contexte_.bon()));
    poids_->montrer(calcul);
    destination_->montrer(calcul);
    montants_->montrer(calcul);
    lien_->montrer(calcul);
    documents_->montrer(calcul);
    reponse_->montrer(calcul);
    pied_->montrer(calcul, suivi_.suivante(), langueAcheteur(contexte_.bon(), calcul.destination));
    pied_->montrerVidee(contexte_.commande.peutRendre());
    const bool vide = contexte_.bon().estVide();
    if (std::exchange(vide_, vide) != vide && vide)
        defilement_->verticalScrollBar()->setValue(0); // the next buyer's begins at the top
}

void Recapitulatif::proposerDAnnuler()
{
    pied_->proposerDAnnuler();
}

} // namespace Quillet
