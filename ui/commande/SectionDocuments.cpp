#include "ui/commande/SectionDocuments.h"

#include "composants/Icone.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "model/Calcul.h"

#include <QPushButton>

namespace Quillet {

SectionDocuments::SectionDocuments(QWidget *parent)
    : Section(QStringLiteral("Documents d’envoi"), {}, parent),
      douane_(new QPushButton(Icone::icone(QStringLiteral("doc.text.magnifyingglass")),
                              QStringLiteral("Déclaration en douane"))),
      facture_(new QPushButton(Icone::icone(QStringLiteral("doc.plaintext")), QStringLiteral("Facture")))
{
    auto *boutons = new QWidget;
    QBoxLayout *rangee = Pile::rangee(boutons, {.espace = 8});
    for (QPushButton *bouton : {douane_, facture_}) {
        rangee->addWidget(bouton, bouton->sizeHint().width()); // in proportion to its text
        // Less of it where the panel is at its narrowest.
        TailleDuTexte::suivre(bouton, [bouton] { bouton->setMinimumWidth(bouton->sizeHint().width() - 16); });
    }
    groupe()->ajouter(Formulaire::seul(boutons));
    connect(douane_, &QPushButton::clicked, this, [this] { emit demandes(OngletDocuments::douane); });
    connect(facture_, &QPushButton::clicked, this, [this] { emit demandes(OngletDocuments::facture); });
}

void SectionDocuments::montrer(const Calcul &calcul)
{
    const bool pret = calcul.pretAPartir();
    douane_->setEnabled(pret);
    facture_->setEnabled(pret);
}

} // namespace Quillet
