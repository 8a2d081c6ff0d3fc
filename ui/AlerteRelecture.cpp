#include "ui/AlerteRelecture.h"

#include "composants/Alerte.h"
#include "composants/Attente.h"
#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "model/Catalogue.h"
#include "textes/TextesGestes.h"

#include <QPushButton>

namespace Quillet {

AlerteRelecture::AlerteRelecture(Catalogue &catalogue, QWidget *parent)
    : QWidget(parent),
      catalogue_(catalogue),
      alerte_(new Alerte),
      relire_(Boutons::deFeuille(QStringLiteral("Les relire"), QStringLiteral("arrow.counterclockwise")))
{
    connect(relire_, &QPushButton::clicked, this, &AlerteRelecture::relire);
    Pile::rangee(this, {.espace = 16}, {{alerte_, 1}, relire_});
    hide();
}

void AlerteRelecture::montrer(const QString &texte, bool aRelire)
{
    relire_->setVisible(aRelire);
    alerte_->montrer(texte);
    setVisible(!texte.isEmpty());
}

void AlerteRelecture::montrer(const Echec &echec)
{
    montrer(TextesGestes::nonEnregistre(echec), dynamic_cast<const DonneesChangees *>(&echec));
}

void AlerteRelecture::relire()
{
    try {
        Catalogue::Lue lue;
        Attente::jusquAuBout(window(), QStringLiteral("Lecture de vos données…"),
                             [&lue, lire = catalogue_.relecture()] { lue = lire(); });
        emit vaRelire();
        catalogue_.prendre(lue);
    } catch (const RessourceIllisible &erreur) {
        montrer(erreur.texte(), true);
        return;
    }
    montrer({});
    emit relu();
}

} // namespace Quillet
