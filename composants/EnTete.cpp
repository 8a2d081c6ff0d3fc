#include "composants/EnTete.h"

#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"

#include <QPainter>

namespace Quillet {

EnTete::EnTete(const QString &titre, QWidget *parent)
    : QWidget(parent), sousTitre_(new Libelle({}, Libelle::Rang::secondaire))
{
    auto *grand = new Libelle(titre);
    grand->setFont(Theme::titreEcran());
    sousTitre_->setFont(Theme::encadre());
    sousTitre_->hide();
    rangee_ = Pile::rangee(this, {.marges = {Theme::margeDePage, 14, Theme::margeDePage, 14}},
                           {{Pile::colonne({.espace = 0}, {grand, sousTitre_}), 1}});
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
    QPainter(this).fillRect(0, height() - 1, width(), 1, Theme::filet(palette()));
}

} // namespace Quillet
