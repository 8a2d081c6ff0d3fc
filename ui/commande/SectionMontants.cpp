#include "ui/commande/SectionMontants.h"

#include "composants/Alerte.h"
#include "composants/Dessin.h"
#include "composants/Libelle.h"
#include "composants/Theme.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/commande/LigneDuTotal.h"

#include <QPainter>

namespace Quillet {

namespace {

// Set off from the other rows.
class TotalEnEvidence : public LigneDuTotal
{
public:
    TotalEnEvidence() : LigneDuTotal(QStringLiteral("TOTAL À PAYER"), {12, 10, 12, 10}) {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        Dessin::aplat(peintre, rect(), Theme::rayonGroupe, Dessin::transparente(Theme::accentTexte(palette()), 0.14));
    }
};

std::optional<Centimes> negatif(const std::optional<Centimes> &montant)
{
    return montant ? std::optional(-*montant) : std::nullopt;
}

} // namespace

SectionMontants::SectionMontants(const Reglages &reglages, QWidget *parent)
    : Section(QStringLiteral("Montants"), {}, parent),
      reglages_(reglages),
      envoi_(QStringLiteral("Envoi Colissimo")),
      total_(new TotalEnEvidence),
      frais_(QStringLiteral("Frais PayPal")),
      reste_(QStringLiteral("Il vous reste")),
      perte_(new Alerte)
{
    reste_.rangee->setDetail(QStringLiteral("les livres moins les frais PayPal"));
    reste_.rangee->libelle()->setFont(Theme::enGras(font()));
    reste_.montant->setFont(Theme::enGras(font()));
    groupe()->ajouter(envoi_.rangee);
    groupe()->ajouter(Formulaire::seul(total_));
    groupe()->ajouter(frais_.rangee);
    groupe()->ajouter(reste_.rangee);
    groupe()->ajouter(perte_);
}

void SectionMontants::montrer(const Calcul &calcul)
{
    envoi_.rangee->setDetail(TextesRecapitulatif::detailEnvoi(calcul));
    envoi_.afficher(calcul.envoi);
    total_->montrer(calcul.total);
    frais_.rangee->setDetail(TextesRecapitulatif::detailFrais(calcul, reglages_.fraisPaypal));
    frais_.afficher(negatif(calcul.fraisPaypal));
    reste_.afficher(calcul.reste);
    perte_->montrer(TextesRecapitulatif::perte(calcul));
}

} // namespace Quillet
