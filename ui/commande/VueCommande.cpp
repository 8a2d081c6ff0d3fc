#include "ui/commande/VueCommande.h"

#include "composants/Defilement.h"
#include "composants/EnTete.h"
#include "composants/EtatVide.h"
#include "composants/Icone.h"
#include "composants/Lien.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "documents/ReponseType.h"
#include "textes/TextesLivres.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Colonnes.h"
#include "ui/Contexte.h"
#include "ui/Raccourcis.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/GrilleLivres.h"
#include "ui/commande/LigneDExemple.h"
#include "ui/commande/Recapitulatif.h"
#include "ui/commande/SelecteurSite.h"
#include "ui/documents/VueDocuments.h"
#include "ui/reponse/VueReponse.h"
#include "ui/vendeurs/FeuillePremiersPas.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Quillet {

namespace {

constexpr int margeVerticale = 28;
constexpr int espace = 36; // between the seller picker and the grid

constexpr int panneauIdeal = 370;
constexpr int panneauMaximum = 460;

} // namespace

VueCommande::VueCommande(const Contexte &contexte, QWidget *parent)
    : EcranDeRubrique(parent),
      contexte_(contexte),
      enTete_(new EnTete(QStringLiteral("Commande"))),
      reinitialiser_(new QPushButton(Icone::icone(QStringLiteral("arrow.counterclockwise")),
                                     QStringLiteral("Tout réinitialiser"))),
      selecteur_(new SelecteurSite(contexte.donnees())),
      grille_(new GrilleLivres(contexte.commande, contexte.images, selecteur_->dernierControle())),
      sansLivre_(new EtatVide),
      recapitulatif_(new Recapitulatif(contexte, suivi_)),
      annonce_(this, [this] { return resume_; })
{
    reinitialiser_->setToolTip(
        QStringLiteral("Tout réinitialiser : quantités, colis pesé et pays de livraison ; l’emballage et la "
                       "destination restent"));
    reinitialiser_->setAccessibleDescription(
        QStringLiteral("Quantités, colis pesé et pays de livraison ; l’emballage et la destination restent"));
    Raccourcis::presser(reinitialiser_, Raccourcis::Geste::reinitialiser);
    enTete_->ajouter(reinitialiser_);
    TailleDuTexte::suivre(recapitulatif_,
                          [this] { recapitulatif_->setMaximumWidth(Theme::aLaTaille(panneauMaximum)); });

    livres_ = colonneDesLivres();
    Pile::rangee(this, {},
                 {Colonnes::entre(livres_, recapitulatif_, recapitulatif_, panneauIdeal, QStringLiteral("commande"),
                                  contexte.preferences)});

    connect(reinitialiser_, &QPushButton::clicked, this, &VueCommande::vider);
    Raccourcis::lier(this, Raccourcis::Geste::rendre, [this] { rendre(); });
    connect(recapitulatif_, &Recapitulatif::annulationDemandee, this, &VueCommande::rendre);
    connect(selecteur_, &SelecteurSite::choisi, &contexte_.commande, &Commande::setVendeur);
    connect(recapitulatif_, &Recapitulatif::documentsDemandes, this, &VueCommande::ouvrirLesDocuments);
    connect(recapitulatif_, &Recapitulatif::etapeDemandee, this, &VueCommande::passerA);
    connect(recapitulatif_, &Recapitulatif::copie, this, [this](const TexteACopier &texte) {
        suivi_.copier(texte);
        actualiser();
    });
    connect(&contexte_.commande, &Commande::change, this, &VueCommande::actualiser);
    connect(&contexte_.catalogue, &Catalogue::change, this, &VueCommande::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &VueCommande::actualiser);
    actualiser();
    annonce_.stop();
}

QList<EcranDeRubrique::Zone> VueCommande::zones()
{
    QWidget *couverture = grille_->arret();
    return QList<Zone>{{livres_, couverture ? couverture : livres_}} + recapitulatif_->zones();
}

QWidget *VueCommande::colonneDesLivres()
{
    // The cards draw their shadows within their own margin: it counts in the space around them.
    constexpr int debord = Couverture::debord;
    const int ascenseur = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QMargins marges(Theme::margeDePage - debord, margeVerticale, Theme::margeDePage - debord - ascenseur,
                          margeVerticale - debord);
    selecteur_->setContentsMargins(debord, 0, debord, 0);
    QWidget *contenu = Pile::enColonne({.marges = marges, .espace = espace - debord},
                                       {selecteur_, grille_, {sansLivre_, 1}, Pile::reste(0)});

    auto *defilement = new Defilement;
    // Always there, so that it counts in the right margin whether or not it has anything to show.
    defilement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    defilement->setMinimumWidth(GrilleLivres::largeurDeDeuxColonnes() + 2 * (Theme::margeDePage - debord));
    contenu->resize(size()); // any size: without one, setWidget lays the whole page out to find its own
    defilement->setWidget(contenu);
    connect(defilement->verticalScrollBar(), &QScrollBar::valueChanged, grille_, &GrilleLivres::suivreLePointeur);

    auto *exemple = new LigneDExemple(contexte_);
    connect(exemple, &LigneDExemple::lesVotres, this, &VueCommande::mettreLesVotres);
    return Pile::enColonne({.espace = 0}, {enTete_, exemple, {defilement, 1}});
}

void VueCommande::actualiser()
{
    const Calcul calcul = contexte_.calcul();
    suivi_.suivre(contexte_.bon(), calcul.total);
    enTete_->setSousTitre(TextesRecapitulatif::sousTitre(calcul));
    const Donnees &donnees = contexte_.donnees();
    const Vendeur vendeur = contexte_.bon().vendeur;
    selecteur_->montrer(donnees, vendeur);
    QList<Livre> livres;
    std::ranges::copy_if(donnees.livres, std::back_inserter(livres),
                         [&](const Livre &livre) { return livre.vendeur == vendeur; });
    grille_->montrer(livres, TextesLivres::vendu(vendeur, donnees));
    grille_->setVisible(!livres.isEmpty());
    if (livres.isEmpty())
        sansLivre_->montrer(QStringLiteral("books.vertical"), {}, TextesLivres::sansLivre(donnees));
    sansLivre_->setVisible(livres.isEmpty());
    recapitulatif_->montrer(calcul);
    if (reinitialiser_->hasFocus() && contexte_.commande.peutRendre())
        recapitulatif_->proposerDAnnuler(); // disabled, it would hand the focus to any neighbour
    reinitialiser_->setEnabled(!contexte_.bon().estVide());
    const QString resume = TextesRecapitulatif::resume(calcul, contexte_.commande.peutRendre());
    if (std::exchange(resume_, resume) != resume)
        annonce_.start(); // whoever does not see the summary hears what has become of it
}

void VueCommande::ouvrirLesDocuments(OngletDocuments onglet)
{
    (new VueDocuments(contexte_, onglet, window()))->ouvrir();
}

void VueCommande::mettreLesVotres()
{
    auto *feuille = new FeuillePremiersPas(contexte_, window());
    connect(feuille, &QDialog::accepted, this, [this] {
        if (QWidget *couverture = grille_->arret())
            couverture->setFocus(); // the line that opened it has gone
    });
    feuille->ouvrir();
}

void VueCommande::ouvrirLaReponse()
{
    auto *reponse = new VueReponse(contexte_, window());
    connect(reponse, &VueReponse::remise, this, [this] { noter(Etape::reponse); });
    reponse->ouvrir();
}

void VueCommande::passerA(Etape etape)
{
    switch (etape) {
    case Etape::lien:
        if (Lien::ouvrir(ReponseType::creationDuLien(), this) && contexte_.calcul().pretAPartir())
            noter(etape);
        break;
    case Etape::reponse:
        ouvrirLaReponse();
        break;
    case Etape::facture:
        ouvrirLesDocuments(OngletDocuments::facture);
        break;
    }
}

void VueCommande::noter(Etape etape)
{
    suivi_.faire(etape);
    actualiser();
}

void VueCommande::vider()
{
    const bool dansLePanneau = recapitulatif_->isAncestorOf(QApplication::focusWidget());
    contexte_.commande.vider();
    if (dansLePanneau && contexte_.commande.peutRendre())
        recapitulatif_->proposerDAnnuler(); // the field that has the focus may go
}

void VueCommande::rendre()
{
    if (!contexte_.commande.peutRendre())
        return;
    if (recapitulatif_->isAncestorOf(QApplication::focusWidget())) {
        reinitialiser_->setEnabled(true);
        reinitialiser_->setFocus(); // before the button that proposed it goes
    }
    contexte_.commande.rendre();
}

} // namespace Quillet
