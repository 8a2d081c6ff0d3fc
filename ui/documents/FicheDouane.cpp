#include "ui/documents/FicheDouane.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/ChampACopier.h"
#include "composants/Defilement.h"
#include "composants/EtatVide.h"
#include "composants/Formulaire.h"
#include "composants/Libelle.h"
#include "composants/Lien.h"
#include "composants/Pile.h"
#include "composants/Theme.h"

#include <QPushButton>
#include <QUrl>

namespace Quillet {

namespace {

constexpr int colonneDesTitres = 170;

} // namespace

FicheDouane::FicheDouane(const Donnees &donnees, QWidget *parent)
    : QStackedWidget(parent), donnees_(donnees), defilement_(new Defilement)
{
    addWidget(defilement_);
    addWidget(new EtatVide(
        QStringLiteral("info.circle"), {},
        QStringLiteral("Pas de déclaration pour cette destination : elle reste dans l’Union européenne.")));
}

void FicheDouane::montrer(const Calcul &calcul)
{
    setCurrentIndex(calcul.douaneRequise ? 0 : 1);
    const auto rubriques = TextesDocuments::declaration(calcul, donnees_.reglages);
    if (!calcul.douaneRequise || rubriques == montrees_)
        return; // a new page would lose the focus and the check marks
    montrees_ = rubriques;
    defilement_->setWidget(page(TextesDocuments::sansIdentite(calcul, donnees_)));
}

QWidget *FicheDouane::instructions()
{
    auto *bloc = new QWidget;
    QBoxLayout *colonne = Pile::colonne(bloc, {.espace = 8});
    for (const QString &texte : TextesDocuments::instructionsDeDouane()) {
        auto *consigne = new Libelle(texte);
        consigne->setWordWrap(true);
        colonne->addWidget(consigne);
    }
    colonne->addWidget(new Alerte(
        QStringLiteral("Sans déclaration, ou avec une déclaration incomplète, le colis est refusé par la douane.")));
    const QString site = TextesDocuments::siteDeLaPoste();
    QPushButton *ouvrir =
        Boutons::deFeuille(QStringLiteral("Ouvrir %1").arg(site), QStringLiteral("arrow.up.forward.app"));
    Boutons::rendrePrincipal(ouvrir);
    connect(ouvrir, &QPushButton::clicked, this,
            [this, site] { Lien::ouvrir(QUrl(QStringLiteral("https://www.%1/").arg(site)), this); });
    colonne->addWidget(ouvrir, 0, Qt::AlignLeft);
    return bloc;
}

QWidget *FicheDouane::page(const QString &manque)
{
    auto *page = new QWidget;
    QBoxLayout *colonne = Pile::colonne(page, {.marges = {20, 20, 20, 24}, .espace = 22}, {instructions()});
    for (const TextesDocuments::Rubrique &rubrique : montrees_) {
        auto *section = new Formulaire::Section(rubrique.titre);
        if (!rubrique.precision.isEmpty())
            section->setPrecision(rubrique.precision);
        for (const TextesDocuments::Champ &champ : rubrique.champs) {
            auto *rangee = new ChampACopier(champ.titre, colonneDesTitres);
            rangee->montrer(champ.valeur, champ.affichage);
            section->groupe()->ajouter(rangee);
            if (!champ.alerte.isEmpty())
                section->groupe()->ajouter(new Alerte(champ.alerte));
        }
        colonne->addWidget(section);
    }
    if (!manque.isEmpty())
        colonne->addWidget(new Alerte(manque));
    colonne->addStretch(1);
    return page;
}

} // namespace Quillet
