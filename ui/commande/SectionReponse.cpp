#include "ui/commande/SectionReponse.h"

#include "composants/Icone.h"
#include "documents/ReponseType.h"
#include "model/Commande.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Raccourcis.h"

#include <QPushButton>

namespace Quillet {

SectionReponse::SectionReponse(const Commande &commande, QWidget *parent)
    : Section(QStringLiteral("Réponse à l’acheteur"),
              QStringLiteral("Dans la langue choisie pour le lien de paiement."), parent),
      commande_(commande),
      ecrire_(new QPushButton(Icone::icone(QStringLiteral("envelope")), {}))
{
    Raccourcis::presser(ecrire_, Raccourcis::Geste::repondre);
    groupe()->ajouter(Formulaire::seul(ecrire_));
    connect(ecrire_, &QPushButton::clicked, this, &SectionReponse::demandee);
}

void SectionReponse::montrer(const Calcul &calcul)
{
    ecrire_->setText(TextesRecapitulatif::libelleDeLaReponse(langueAcheteur(commande_.bon(), calcul.destination)));
    ecrire_->setEnabled(calcul.pretAPartir());
}

} // namespace Quillet
