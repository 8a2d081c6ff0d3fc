#include "ui/commande/SectionLien.h"

#include "composants/Alerte.h"
#include "composants/ChampACopier.h"
#include "composants/Icone.h"
#include "composants/Lien.h"
#include "composants/LigneDeTexte.h"
#include "documents/PaysDeLivraison.h"
#include "documents/ReponseType.h"
#include "model/Commande.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/reponse/ChoixLangue.h"

#include <QLineEdit>
#include <QPushButton>

namespace Quillet {

namespace {

const QString reglagesDuLien =
    QStringLiteral("Un prix fixe en EUR, Quantité désactivée. Onglet Checkout : adresse de livraison activée. "
                   "Onglet Confirmation : URL de redirection automatique.");

} // namespace

SectionLien::SectionLien(const Donnees &donnees, Commande &commande, QWidget *parent)
    : Section(QStringLiteral("Lien de paiement PayPal"), reglagesDuLien, parent),
      donnees_(donnees),
      commande_(commande),
      langue_(new ChoixLangue),
      pays_(new LigneDeTexte),
      rangeePays_(new Formulaire::RangeeHaute(QStringLiteral("Pays de livraison"), pays_)),
      zone_(new Alerte(QStringLiteral("info.circle"), {}, Alerte::Ton::note)),
      nomDeLObjet_(new ChampACopier(QStringLiteral("Nom de l’objet"))),
      description_(new ChampACopier(QStringLiteral("Description"))),
      prix_(new ChampACopier(QStringLiteral("Prix"))),
      retour_(new ChampACopier(QStringLiteral("URL de redirection")))
{
    auto *creer = new QPushButton(Icone::icone(QStringLiteral("arrow.up.forward.app")),
                                  QStringLiteral("Créer le lien dans PayPal"));
    groupe()->ajouter(new Formulaire::RangeeHaute(QStringLiteral("Langue de l’acheteur"), langue_));
    groupe()->ajouter(Formulaire::seul(creer));
    groupe()->ajouter(rangeePays_);
    groupe()->ajouter(zone_);
    for (ChampACopier *champ : {nomDeLObjet_, description_, prix_, retour_})
        groupe()->ajouter(champ);

    connect(langue_, &ChoixLangue::choisie, this, [this](Langue langue) {
        commande_.adopter(PaysDeLivraison::ecrite(commande_.bon(), langue, donnees_.pays));
    });
    connect(creer, &QPushButton::clicked, this, [this] { Lien::ouvrir(ReponseType::creationDuLien(), this); });
    connect(pays_, &QLineEdit::textChanged, &commande_, &Commande::setPaysLivraison);
}

void SectionLien::montrer(const Calcul &calcul)
{
    langue_->montrer(langueAcheteur(commande_.bon(), calcul.destination));
    if (pays_->text() != commande_.bon().paysLivraison)
        pays_->setText(commande_.bon().paysLivraison);

    const auto lien = TextesRecapitulatif::lienDePaiement(calcul, donnees_, commande_.bon());
    rangeePays_->setVisible(lien.has_value());
    zone_->montrer(lien ? lien->zoneDite : QString());
    for (ChampACopier *champ : {nomDeLObjet_, description_, prix_})
        champ->setVisible(lien.has_value());
    retour_->setVisible(lien && lien->retour);
    if (!lien)
        return;
    rangeePays_->setDetail(lien->indicationDuPays);
    pays_->setInvite(lien->paysPropose);
    nomDeLObjet_->montrer(lien->nomDeLObjet);
    description_->montrer(lien->description);
    prix_->montrer(lien->prix, lien->prixAffiche);
    retour_->montrer(lien->retour.value_or(QString()));
}

} // namespace Quillet
