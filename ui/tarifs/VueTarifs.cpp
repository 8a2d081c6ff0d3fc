#include "ui/tarifs/VueTarifs.h"

#include "model/Catalogue.h"
#include "model/Format.h"
#include "ui/Theme.h"
#include "ui/commun/Defilement.h"
#include "ui/commun/EnTete.h"
#include "ui/commun/Libelle.h"
#include "ui/tarifs/CarteGrille.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace {

constexpr int largeurMaximale = 960;
constexpr int colonnes = 2;

QWidget *famille(const TextesTarifs::Famille &textes)
{
    auto *section = new QWidget;
    auto *titre = new Libelle(textes.titre);
    titre->setFont(Theme::titreSection());
    auto *grilles = new QGridLayout(section);
    grilles->setContentsMargins(0, 0, 0, 0);
    grilles->setHorizontalSpacing(16);
    grilles->setVerticalSpacing(12);
    grilles->addWidget(titre, 0, 0, 1, colonnes);
    for (int i = 0; i < textes.grilles.size(); ++i)
        grilles->addWidget(new CarteGrille(textes.grilles[i]), 1 + i / colonnes, i % colonnes);
    for (int i = 0; i < colonnes; ++i)
        grilles->setColumnStretch(i, 1);
    return section;
}

} // namespace

VueTarifs::VueTarifs(const Catalogue &catalogue, Aujourdhui aujourdhui, QWidget *parent)
    : QWidget(parent),
      catalogue_(catalogue),
      aujourdhui_(std::move(aujourdhui)),
      enTete_(new EnTete(tr("Tarifs Colissimo"))),
      defilement_(new Defilement)
{
    // Nothing on this page takes the focus: the page does, so that the arrow keys scroll it.
    defilement_->setFocusPolicy(Qt::StrongFocus);
    defilement_->setAccessibleName(tr("Grilles en vigueur"));
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(enTete_);
    colonne->addWidget(defilement_, 1);
    connect(&catalogue_, &Catalogue::change, this, &VueTarifs::actualiser);
    actualiser();
}

void VueTarifs::actualiser()
{
    const TarifsColissimo &tarifs = catalogue_.tarifs(Format::iso(aujourdhui_()));
    enTete_->setSousTitre(tr("en vigueur au %1").arg(Format::date(tarifs.validite)));

    auto *page = new QWidget;
    auto *familles = new QVBoxLayout;
    familles->setSpacing(32);
    for (const TextesTarifs::Famille &textes : TextesTarifs::familles(tarifs))
        familles->addWidget(famille(textes));
    familles->addStretch(1);
    auto *largeur = new QWidget;
    largeur->setMaximumWidth(largeurMaximale);
    largeur->setLayout(familles);
    auto *marges = new QHBoxLayout(page);
    marges->setContentsMargins(29, 17, 29, 17);
    marges->addWidget(largeur, 1);
    marges->addStretch(0);
    defilement_->setWidget(page);
}
