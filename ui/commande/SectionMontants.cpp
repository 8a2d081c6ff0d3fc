#include "ui/commande/SectionMontants.h"

#include "ui/Theme.h"
#include "ui/commande/TextesRecapitulatif.h"
#include "ui/commun/Libelle.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {

class LigneDuTotal : public QWidget
{
public:
    explicit LigneDuTotal(NombreRoulant *total)
    {
        auto *libelle = new Libelle(SectionMontants::tr("TOTAL À PAYER"));
        QFont titre = Theme::enGras(font());
        titre.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
        libelle->setFont(titre);
        total->setFont(Theme::montant());
        auto *rangee = new QHBoxLayout(this);
        rangee->setContentsMargins(12, 10, 12, 10);
        rangee->addWidget(libelle, 1);
        rangee->addWidget(total);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        QColor fond = Theme::accentTexte(palette());
        fond.setAlphaF(0.14F);
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(fond);
        peintre.drawRoundedRect(rect(), Theme::rayonGroupe, Theme::rayonGroupe);
    }
};

std::optional<Centimes> negatif(const std::optional<Centimes> &montant)
{
    return montant ? std::optional(-*montant) : std::nullopt;
}

} // namespace

SectionMontants::SectionMontants(const Reglages &reglages, QWidget *parent)
    : Section(tr("Montants"), {}, parent),
      reglages_(reglages),
      envoi_(tr("Envoi Colissimo")),
      total_(new NombreRoulant),
      frais_(tr("Frais PayPal")),
      reste_(tr("Il vous reste"))
{
    reste_.rangee->setDetail(tr("les livres moins les frais PayPal"));
    reste_.rangee->libelle()->setFont(Theme::enGras(font()));
    reste_.montant->setFont(Theme::enGras(font()));
    groupe()->ajouter(envoi_.rangee);
    groupe()->ajouter(Formulaire::seul(new LigneDuTotal(total_)));
    groupe()->ajouter(frais_.rangee);
    groupe()->ajouter(reste_.rangee);
}

void SectionMontants::montrer(const Calcul &calcul)
{
    envoi_.rangee->setDetail(TextesRecapitulatif::detailEnvoi(calcul));
    envoi_.montant->afficher(TextesRecapitulatif::euros(calcul.envoi));
    total_->setForegroundRole(calcul.total ? QPalette::WindowText : QPalette::PlaceholderText);
    total_->afficher(TextesRecapitulatif::euros(calcul.total));
    frais_.rangee->setDetail(TextesRecapitulatif::detailFrais(calcul, reglages_.fraisPaypal));
    frais_.montant->afficher(TextesRecapitulatif::euros(negatif(calcul.fraisPaypal)));
    reste_.montant->afficher(TextesRecapitulatif::euros(calcul.reste));
}
