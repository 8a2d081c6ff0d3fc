#include "ui/documents/VueDocuments.h"

#include "composants/ChoixSegmente.h"
#include "model/Calcul.h"
#include "model/Catalogue.h"
#include "model/Commande.h"
#include "ui/JourCourant.h"
#include "ui/documents/FicheDouane.h"
#include "ui/documents/FicheFacture.h"

#include <QRadioButton>
#include <QStackedWidget>

namespace {

constexpr QSize tailleDesDocuments(760, 720);

} // namespace

VueDocuments::VueDocuments(const Catalogue &catalogue, const Commande &commande, const Preferences &preferences,
                           JourCourant &jour, OngletDocuments onglet, QWidget *parent)
    : Feuille(QStringLiteral("Documents d’envoi"), parent),
      catalogue_(catalogue),
      commande_(commande),
      jour_(jour),
      douane_(new FicheDouane(catalogue.donnees().reglages)),
      facture_(new FicheFacture(catalogue.donnees().reglages, preferences, jour))
{
    auto *onglets =
        new ChoixSegmente({QStringLiteral("Déclaration en douane"), QStringLiteral("Facture")}, {.police = font()});
    auto *pages = new QStackedWidget;
    pages->addWidget(douane_);
    pages->addWidget(facture_);
    meubler(onglets, pages);
    connect(onglets, &ChoixSegmente::choisi, pages, &QStackedWidget::setCurrentIndex);
    onglets->montrer(static_cast<int>(onglet));
    pages->setCurrentIndex(static_cast<int>(onglet));

    connect(&commande_, &Commande::change, this, &VueDocuments::actualiser);
    connect(&catalogue_, &Catalogue::change, this, &VueDocuments::actualiser);
    connect(&jour_, &JourCourant::change, this, &VueDocuments::actualiser);
    connect(facture_, &FicheFacture::emission, &jour_, &JourCourant::regarder);
    actualiser();
    if (onglet == OngletDocuments::facture)
        facture_->prendreLeFocus();
    else
        onglets->bouton(static_cast<int>(onglet))->setFocus();
    prendreLaTaille(tailleDesDocuments);
}

void VueDocuments::actualiser()
{
    const Calcul calcul = Calcul::de(catalogue_.donnees(), commande_.bon(), jour_.aujourdhui());
    douane_->montrer(calcul);
    facture_->montrer(calcul);
}
