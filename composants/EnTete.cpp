#include "composants/EnTete.h"

#include "composants/Dessin.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QPainter>

namespace Quillet {

EnTete::EnTete(const QString &titre, int marge, QWidget *parent)
    : QWidget(parent), bandeau_(new QWidget), sousTitre_(new Libelle({}, Libelle::Rang::secondaire))
{
    auto *grand = new Libelle(titre);
    grand->setFont(Theme::titreEcran());
    sousTitre_->setFont(Theme::encadre());
    sousTitre_->hide();
    rangee_ = Pile::rangee(bandeau_, {}, {{Pile::colonne({.espace = 0}, {grand, sousTitre_}), 1}});
    Pile::rangee(this, {.marges = {marge, 14, marge, 14}, .espace = 0},
                 {Pile::reste(0), {bandeau_, 1}, Pile::reste(0)});
}

void EnTete::setLargeur(int largeur)
{
    TailleDuTexte::suivre(bandeau_, [this, largeur] { bandeau_->setMaximumWidth(Theme::aLaTaille(largeur)); });
}

void EnTete::setSousTitre(const QString &sousTitre)
{
    sousTitre_->setText(sousTitre);
    sousTitre_->setVisible(!sousTitre.isEmpty());
}

void EnTete::ajouter(QWidget *commande)
{
    rangee_->addWidget(commande, 0, Qt::AlignVCenter);
}

void EnTete::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::filet(peintre, QPoint(0, height() - 1), width(), palette());
}

} // namespace Quillet
