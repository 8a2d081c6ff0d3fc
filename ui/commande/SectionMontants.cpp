#include "ui/commande/SectionMontants.h"

#include "composants/Alerte.h"
#include "composants/Chiffres.h"
#include "composants/Dessin.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "model/Format.h"
#include "textes/TextesRecapitulatif.h"

#include <QEvent>
#include <QPainter>

namespace Quillet {

// The amount to ask, set off from the other rows.
class SectionMontants::LigneDuTotal : public QWidget
{
public:
    explicit LigneDuTotal(NombreRoulant *total) : libelle_(new Libelle(QStringLiteral("TOTAL À PAYER"))), total_(total)
    {
        QFont titre = Theme::enGras(font());
        titre.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
        libelle_->setFont(titre);
        // Takes what the label leaves, and fits its type to it: a long total must not widen the panel.
        total_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        Pile::rangee(this, {.marges = {12, 10, 12, 10}}, {libelle_, {total_, 1}});
    }

    void ajuster()
    {
        const QRect dedans = rect().marginsRemoved(layout()->contentsMargins());
        const int place = dedans.width() - libelle_->sizeHint().width() - layout()->spacing();
        total_->setFont(Chiffres::ajustee(Theme::grandChiffre(), total_->text(), place));
    }

protected:
    void resizeEvent(QResizeEvent *) override { ajuster(); }

    void changeEvent(QEvent *evenement) override
    {
        QWidget::changeEvent(evenement);
        if (evenement->type() == QEvent::FontChange && layout())
            ajuster();
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        Dessin::aplat(peintre, rect(), Theme::rayonGroupe, Dessin::transparente(Theme::accentTexte(palette()), 0.14));
    }

private:
    Libelle *libelle_;
    NombreRoulant *total_;
};

namespace {

std::optional<Centimes> negatif(const std::optional<Centimes> &montant)
{
    return montant ? std::optional(-*montant) : std::nullopt;
}

void afficher(NombreRoulant *nombre, const std::optional<Centimes> &montant)
{
    const QString texte = Format::euros(montant);
    nombre->afficher(texte, 1, Format::dit(texte));
}

} // namespace

SectionMontants::SectionMontants(const Reglages &reglages, QWidget *parent)
    : Section(QStringLiteral("Montants"), {}, parent),
      reglages_(reglages),
      envoi_(QStringLiteral("Envoi Colissimo")),
      total_(new NombreRoulant),
      ligneDuTotal_(new LigneDuTotal(total_)),
      frais_(QStringLiteral("Frais PayPal")),
      reste_(QStringLiteral("Il vous reste")),
      perte_(new Alerte)
{
    reste_.rangee->setDetail(QStringLiteral("les livres moins les frais PayPal"));
    reste_.rangee->libelle()->setFont(Theme::enGras(font()));
    reste_.montant->setFont(Theme::enGras(font()));
    groupe()->ajouter(envoi_.rangee);
    groupe()->ajouter(Formulaire::seul(ligneDuTotal_));
    groupe()->ajouter(frais_.rangee);
    groupe()->ajouter(reste_.rangee);
    groupe()->ajouter(perte_);
}

void SectionMontants::montrer(const Calcul &calcul)
{
    envoi_.rangee->setDetail(TextesRecapitulatif::detailEnvoi(calcul));
    afficher(envoi_.montant, calcul.envoi);
    total_->setForegroundRole(calcul.total ? QPalette::WindowText : Theme::roleSecondaire);
    afficher(total_, calcul.total);
    ligneDuTotal_->ajuster();
    frais_.rangee->setDetail(TextesRecapitulatif::detailFrais(calcul, reglages_.fraisPaypal));
    afficher(frais_.montant, negatif(calcul.fraisPaypal));
    afficher(reste_.montant, calcul.reste);
    perte_->montrer(TextesRecapitulatif::perte(calcul));
}

} // namespace Quillet
