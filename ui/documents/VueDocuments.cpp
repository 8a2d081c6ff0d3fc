#include "ui/documents/VueDocuments.h"

#include "composants/ChoixSegmente.h"
#include "ui/Contexte.h"
#include "ui/documents/FicheDouane.h"
#include "ui/documents/FicheFacture.h"

#include <QRadioButton>
#include <QStackedWidget>

namespace Quillet {

namespace {

constexpr QSize tailleDesDocuments(760, 720);

} // namespace

VueDocuments::VueDocuments(const Contexte &contexte, OngletDocuments onglet, QWidget *parent)
    : Feuille(QStringLiteral("Documents d’envoi"), parent),
      contexte_(contexte),
      douane_(new FicheDouane(contexte.donnees())),
      facture_(new FicheFacture(contexte))
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

    connect(&contexte_.commande, &Commande::change, this, &VueDocuments::actualiser);
    connect(&contexte_.catalogue, &Catalogue::change, this, &VueDocuments::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &VueDocuments::actualiser);
    actualiser();
    if (onglet == OngletDocuments::facture)
        facture_->prendreLeFocus();
    else
        onglets->bouton(static_cast<int>(onglet))->setFocus();
    prendreLaTaille(tailleDesDocuments);
}

void VueDocuments::actualiser()
{
    const Calcul calcul = contexte_.calcul();
    douane_->montrer(calcul);
    facture_->montrer(calcul);
}

} // namespace Quillet
