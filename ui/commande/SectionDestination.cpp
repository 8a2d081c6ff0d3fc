#include "ui/commande/SectionDestination.h"

#include "composants/Choix.h"
#include "composants/Interrupteur.h"
#include "composants/Libelle.h"
#include "composants/Theme.h"
#include "model/Commande.h"
#include "textes/TextesRecapitulatif.h"

namespace Quillet {

SectionDestination::SectionDestination(const QList<Destination> &destinations, Commande &commande, QWidget *parent)
    : Section(QStringLiteral("Destination"), {}, parent),
      commande_(commande),
      destination_(new Choix),
      nomComplet_(new Libelle({}, Libelle::Rang::secondaire)),
      horsUE_(new Interrupteur),
      rangeeHorsUE_(new Formulaire::Rangee({}, horsUE_)),
      declaration_(new Libelle({})),
      rangeeDeclaration_(new Formulaire::Rangee(QStringLiteral("Déclaration en douane"), declaration_))
{
    for (const Destination &destination : destinations)
        destination_->ajouter(destination.libelleCourt, destination.code.texte());
    nomComplet_->setFont(Theme::encadre());
    nomComplet_->setWordWrap(true);
    rangeeHorsUE_->setDetail(QStringLiteral("hors Union européenne : déclaration en douane"));

    groupe()->ajouter(new Formulaire::Rangee(QStringLiteral("Envoi vers"), destination_));
    groupe()->ajouter(nomComplet_);
    groupe()->ajouter(rangeeHorsUE_);
    groupe()->ajouter(rangeeDeclaration_);

    connect(destination_, &Choix::choisi, &commande_,
            [this](const QString &code) { commande_.setCodeDestination(CodeDestination(code)); });
    connect(horsUE_, &QAbstractButton::toggled, &commande_, &Commande::setHorsUE);
}

void SectionDestination::montrer(const Calcul &calcul)
{
    destination_->montrer(commande_.bon().codeDestination.texte());
    const QString complet = TextesRecapitulatif::destinationComplete(calcul);
    nomComplet_->setText(complet);
    nomComplet_->setVisible(!complet.isEmpty());

    const auto exception = calcul.destination ? calcul.destination->douaneSauf : std::nullopt;
    rangeeHorsUE_->setVisible(exception.has_value());
    if (exception) {
        const QString colis = QStringLiteral("Colis pour %1").arg(*exception);
        rangeeHorsUE_->setTexte(colis);
        horsUE_->setAccessibleName(colis);
    }
    horsUE_->setChecked(commande_.bon().horsUE);

    rangeeDeclaration_->setVisible(calcul.destination.has_value());
    declaration_->setText(TextesRecapitulatif::declaration(calcul));
}

} // namespace Quillet
