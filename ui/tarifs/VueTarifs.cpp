#include "ui/tarifs/VueTarifs.h"

#include "composants/EnTete.h"
#include "composants/Formulaire.h"
#include "composants/Libelle.h"
#include "composants/PageAuClavier.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "textes/TextesVerifications.h"
#include "ui/Contexte.h"
#include "ui/tarifs/CarteFamille.h"
#include "ui/tarifs/CarteNouveauxFrais.h"
#include "ui/tarifs/CarteNouveauxTarifs.h"
#include "ui/tarifs/ChoixTarifs.h"
#include "ui/tarifs/LigneVerification.h"

#include <QScrollBar>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace Quillet {

namespace {

constexpr int entreSections = 32;
constexpr int largeurDePage = 840; // a price stays within sight of its weight

QWidget *tableaux(const QList<TextesTarifs::Famille> &familles, const QList<TextesTarifs::Frais> &frais)
{
    auto *tableaux = new QWidget;
    QBoxLayout *colonne = Pile::colonne(tableaux, {.espace = 12});
    qsizetype zones = 1; // of the family that has the most
    for (const TextesTarifs::Famille &famille : familles)
        zones = std::max(zones, famille.zones.size());
    for (const TextesTarifs::Famille &famille : familles) {
        colonne->addWidget(Libelle::titreDeSection(famille.titre));
        colonne->addWidget(new CarteFamille(famille, zones));
        colonne->addSpacing(entreSections - 12);
    }
    auto *groupe = new Formulaire::Groupe;
    for (const auto &[libelle, valeur] : frais)
        groupe->ajouter(CarteFamille::enLigne(new Formulaire::Rangee(libelle, new Libelle(valeur)), zones));
    colonne->addWidget(Libelle::titreDeSection(QStringLiteral("Frais PayPal")));
    colonne->addWidget(groupe);
    return tableaux;
}

} // namespace

VueTarifs::VueTarifs(const Contexte &contexte, QWidget *parent)
    : EcranDeRubrique(parent),
      contexte_(contexte),
      enTete_(new EnTete(QStringLiteral("Tarifs Colissimo"))),
      choix_(new ChoixTarifs),
      laPoste_(new LigneVerification(QStringLiteral("Tarifs Colissimo"))),
      paypal_(new LigneVerification(QStringLiteral("Frais PayPal")))
{
    auto *contenu = new QWidget;
    TailleDuTexte::suivre(contenu, [contenu] { contenu->setMaximumWidth(Theme::aLaTaille(largeurDePage)); });
    sections_ = Pile::colonne(contenu, {.espace = entreSections}, {controles(), Pile::reste()});
    const int ascenseur = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QWidget *page = Pile::enRangee({.marges = {Theme::margeDePage, 24, Theme::margeDePage - ascenseur, 28}},
                                   {Pile::reste(0), {contenu, 1}, Pile::reste(0)});
    auto *defilement = new PageAuClavier;
    defilement->setAccessibleName(QStringLiteral("Tarifs et frais"));
    defilement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    defilement->setWidget(page);
    page->setAutoFillBackground(false); // the focus ring is painted behind it

    Pile::colonne(this, {.espace = 0}, {enTete_, {defilement, 1}});
    enTete_->setLargeur(largeurDePage);
    enTete_->ajouter(choix_);
    connect(choix_, &ChoixTarifs::choisi, this, &VueTarifs::actualiser);
    connect(&contexte_.catalogue, &Catalogue::change, this, &VueTarifs::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &VueTarifs::actualiser);
    connect(&contexte_.jour, &JourCourant::retour, this, &VueTarifs::actualiser);
    connect(&contexte_.commande, &Commande::change, this, &VueTarifs::actualiser);
    connect(&contexte_.verifications, &Verifications::change, this, &VueTarifs::actualiser);
}

QWidget *VueTarifs::controles()
{
    auto *groupe = new Formulaire::Groupe;
    groupe->ajouter(laPoste_);
    groupe->ajouter(paypal_);
    Verifications &verifications = contexte_.verifications;
    connect(laPoste_, &LigneVerification::verificationDemandee, &verifications, &Verifications::verifierLaPoste);
    connect(paypal_, &LigneVerification::verificationDemandee, &verifications, &Verifications::verifierPaypal);
    connect(laPoste_, &LigneVerification::changementsDemandes, this,
            [this] { (new CarteNouveauxTarifs(contexte_, window()))->ouvrir(); });
    connect(paypal_, &LigneVerification::changementsDemandes, this,
            [this] { (new CarteNouveauxFrais(contexte_, window()))->ouvrir(); });
    return Pile::enColonne({.espace = 12}, {Libelle::titreDeSection(QStringLiteral("Vérifications")), groupe,
                                            Libelle::note(TextesVerifications::rythme())});
}

void VueTarifs::actualiser()
{
    if (!isVisible())
        return; // up to date again when it shows
    const QDate jour = contexte_.jour.aujourdhui();
    choix_->actualiser(contexte_.donnees(), jour);
    const TarifsColissimo &tarifs = choix_->tarifs();
    enTete_->setSousTitre(choix_->montreLesSuivants() ? TextesTarifs::aPartirDu(tarifs)
                                                      : TextesTarifs::enVigueur(tarifs));
    laPoste_->montrer(TextesVerifications::laPoste(contexte_.verifications, contexte_.donnees(), jour));
    paypal_->montrer(TextesVerifications::paypal(contexte_.verifications, contexte_.donnees()));

    // What says the same stays: the page keeps its place.
    std::optional<Calcul> enCours;
    if (!contexte_.bon().estVide())
        enCours = contexte_.calcul();
    const auto familles = TextesTarifs::familles(tarifs, enCours);
    const auto frais = TextesTarifs::frais(contexte_.donnees().reglages.fraisPaypal);
    if (tableaux_ && familles == familles_ && frais == frais_)
        return;
    familles_ = familles;
    frais_ = frais;
    QWidget *avant = std::exchange(tableaux_, tableaux(familles_, frais_));
    sections_->insertWidget(1, tableaux_);
    tableaux_->show(); // what joins a window already shown would wait for its turn
    delete avant;
}

void VueTarifs::showEvent(QShowEvent *evenement)
{
    EcranDeRubrique::showEvent(evenement);
    actualiser();
}

} // namespace Quillet
