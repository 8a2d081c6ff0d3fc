#include "ui/FeuilleRaccourcis.h"

#include "composants/Formulaire.h"
#include "composants/Libelle.h"
#include "composants/PageAuClavier.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "composants/Touches.h"
#include "ui/Raccourcis.h"

namespace Quillet {

namespace {

const QString titre = QStringLiteral("Raccourcis clavier");
constexpr QSize taille(600, 720);

} // namespace

FeuilleRaccourcis::FeuilleRaccourcis(QWidget *parent) : Feuille(titre, parent)
{
    auto *contenu = new QWidget;
    QBoxLayout *colonne = Pile::colonne(contenu, {.marges = {20, 20, 20, 24}, .espace = 22});
    for (const Raccourcis::Groupe &groupe : Raccourcis::table()) {
        auto *section = new Formulaire::Section(groupe.titre);
        for (const Raccourcis::Raccourci &raccourci : groupe.raccourcis) {
            auto *rangee = new Formulaire::Rangee({}, new Touches(raccourci.enTexte()));
            rangee->setTexte(raccourci.effet);
            section->groupe()->ajouter(rangee);
        }
        colonne->addWidget(section);
    }
    auto *page = new PageAuClavier;
    page->setAccessibleName(titre);
    page->setWidget(contenu);
    auto *tete = new Libelle(titre);
    tete->setFont(Theme::titreSection());
    meubler(tete, page);
    page->setFocus();
    prendreLaTaille(taille);
}

} // namespace Quillet
