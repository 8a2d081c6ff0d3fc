#include "ui/commande/SectionLien.h"

#include "composants/Alerte.h"
#include "composants/ChampACopier.h"
#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/LigneDeTexte.h"
#include "composants/Pile.h"
#include "documents/PaysDeLivraison.h"
#include "documents/ReponseType.h"
#include "model/Commande.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Raccourcis.h"
#include "ui/reponse/ChoixLangue.h"

#include <QLineEdit>
#include <QPushButton>

namespace Quillet {

namespace {

const QString reglagesDuLien =
    QStringLiteral("Un prix fixe en EUR, Quantité désactivée. Onglet Checkout : adresse de livraison activée. "
                   "Onglet Confirmation : URL de redirection automatique.");

} // namespace

SectionLien::SectionLien(const Donnees &donnees, Commande &commande, const Suivi &suivi, QWidget *parent)
    : Section(QStringLiteral("Lien de paiement PayPal"), reglagesDuLien, parent),
      donnees_(donnees),
      commande_(commande),
      suivi_(suivi),
      langue_(new ChoixLangue),
      pays_(new LigneDeTexte),
      rangeePays_(new Formulaire::RangeeHaute(QStringLiteral("Pays de livraison"), pays_)),
      zone_(new Alerte(QStringLiteral("info.circle"), {}, Alerte::Ton::note)),
      nomDeLObjet_(new ChampACopier(QStringLiteral("Nom de l’objet"))),
      description_(new ChampACopier(QStringLiteral("Description"))),
      prix_(new ChampACopier(QStringLiteral("Prix"))),
      retour_(new ChampACopier(QStringLiteral("URL de redirection"))),
      tour_(Libelle::note({}))
{
    auto *creer =
        new QPushButton(Icone::icone(QStringLiteral("arrow.up.forward.app")), TextesRecapitulatif::creationDuLien());
    auto *copier = new QPushButton(Icone::icone(QStringLiteral("doc.on.doc")), QStringLiteral("Copier le suivant"));
    tour_->setAlignment(Qt::AlignHCenter);
    aLaSuite_ = Pile::enColonne({.espace = 4}, {copier, tour_});
    groupe()->ajouter(new Formulaire::RangeeHaute(QStringLiteral("Langue de l’acheteur"), langue_));
    groupe()->ajouter(Formulaire::seul(creer));
    groupe()->ajouter(rangeePays_);
    groupe()->ajouter(zone_);
    for (ChampACopier *champ : {nomDeLObjet_, description_, prix_, retour_}) {
        groupe()->ajouter(champ);
        connect(champ, &ChampACopier::copie, this, [this, champ] { emit copie({champ->titre(), champ->valeur()}); });
    }
    groupe()->ajouter(aLaSuite_);

    connect(langue_, &ChoixLangue::choisie, this, [this](Langue langue) {
        commande_.adopter(PaysDeLivraison::ecrite(commande_.bon(), langue, donnees_.pays));
    });
    connect(creer, &QPushButton::clicked, this, &SectionLien::creationDemandee);
    connect(copier, &QPushButton::clicked, this, &SectionLien::copierLeSuivant);
    Raccourcis::presser(copier, Raccourcis::Geste::copierLeSuivant);
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
    aLaSuite_->setVisible(lien.has_value());
    if (!lien)
        return;
    rangeePays_->setDetail(lien->indicationDuPays);
    pays_->setInvite(lien->paysPropose);
    nomDeLObjet_->montrer(lien->nomDeLObjet);
    description_->montrer(lien->description);
    prix_->montrer(lien->prix, lien->prixAffiche);
    retour_->montrer(lien->retour.value_or(QString()));
    for (ChampACopier *champ : champs())
        champ->marquer(suivi_.estCopie({champ->titre(), champ->valeur()}));
    tour_->setText(TextesRecapitulatif::tourDeCopie(suivi_, textes()));
}

QList<ChampACopier *> SectionLien::champs() const
{
    QList<ChampACopier *> champs{nomDeLObjet_, description_, prix_, retour_};
    champs.removeIf([](const ChampACopier *champ) { return champ->isHidden(); });
    return champs;
}

QList<TexteACopier> SectionLien::textes() const
{
    QList<TexteACopier> textes;
    for (const ChampACopier *champ : champs())
        textes.append({champ->titre(), champ->valeur()});
    return textes;
}

void SectionLien::copierLeSuivant()
{
    const auto places = champs();
    if (places.isEmpty())
        return; // pressed by a screen reader, which may know the button from before it was hidden
    ChampACopier *suivant = places[suivi_.aCopier(textes())];
    suivant->copier();
    emit copieALaSuite(suivant);
}

} // namespace Quillet
