#include "ui/commande/PiedDeCommande.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/Raccourcis.h"
#include "ui/commande/LigneDuTotal.h"

#include <QPainter>
#include <QPushButton>
#include <QStyle>

namespace Quillet {

namespace {

void enSecond(const RangeeMontant &rangee)
{
    for (Libelle *texte : {rangee.rangee->libelle(), static_cast<Libelle *>(rangee.montant)}) {
        texte->setFont(Theme::encadre());
        texte->setRang(Libelle::Rang::secondaire);
    }
}

} // namespace

PiedDeCommande::PiedDeCommande(QWidget *parent)
    : QWidget(parent),
      annuler_(new QPushButton(Icone::icone(QStringLiteral("arrow.uturn.backward")), QStringLiteral("Annuler"))),
      total_(new LigneDuTotal(QStringLiteral("TOTAL"))),
      reste_(QStringLiteral("Il vous reste")),
      suivante_(new QPushButton)
{
    LecteurDEcran::jouer(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Total et étape suivante"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);

    Raccourcis::dire(annuler_, Raccourcis::Geste::rendre);
    annuler_->setAccessibleName(QStringLiteral("Annuler, rétablir la commande vidée"));
    auto *videe = new Libelle(QStringLiteral("Commande vidée"));
    videe->setWordWrap(true);
    videe_ = Pile::enRangee({.espace = 8}, {{videe, 1}, annuler_});
    videe_->setContentsMargins(0, 0, 0, 6);
    for (const RangeeMontant *rangee : {&envoi_, &reste_})
        enSecond(*rangee);
    const int ascenseur =
        style()->pixelMetric(QStyle::PM_ScrollBarExtent); // of the sections above, which it lines up with
    Pile::colonne(this, {.marges = {16, 11, 16 + ascenseur, 12}, .espace = 0},
                  {videe_, envoi_.rangee, total_, reste_.rangee, Pile::blanc(8), suivante_});

    Raccourcis::presser(suivante_, Raccourcis::Geste::etapeSuivante);
    connect(annuler_, &QPushButton::clicked, this, &PiedDeCommande::annulationDemandee);
    connect(suivante_, &QPushButton::clicked, this, [this] { emit etapeDemandee(etape_); });
}

void PiedDeCommande::montrer(const Calcul &calcul, Etape etape, Langue langue)
{
    envoi_.rangee->setTexte(TextesRecapitulatif::colis(calcul));
    envoi_.afficher(calcul.envoi);
    total_->montrer(calcul.total);
    reste_.afficher(calcul.reste);

    etape_ = etape;
    const auto suivante = TextesRecapitulatif::etapeSuivante(etape, calcul, langue);
    suivante_->setIcon(Icone::icone(suivante.symbole));
    suivante_->setText(suivante.texte);
    suivante_->setAccessibleName(QStringLiteral("Étape suivante : %1").arg(suivante.texte));
    suivante_->setEnabled(suivante.possible);
    suivante_->setDefault(suivante.attendue); // filled
}

void PiedDeCommande::montrerVidee(bool videe)
{
    videe_->setVisible(videe);
}

void PiedDeCommande::proposerDAnnuler()
{
    annuler_->setFocus();
}

void PiedDeCommande::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::filet(peintre, {0, 0}, width(), palette());
}

} // namespace Quillet
