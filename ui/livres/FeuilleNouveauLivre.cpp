#include "ui/livres/FeuilleNouveauLivre.h"

#include "composants/Boutons.h"
#include "composants/Pile.h"
#include "model/Catalogue.h"
#include "model/EditionLivres.h"
#include "model/Historique.h"
#include "textes/TextesGestes.h"
#include "ui/Contexte.h"
#include "ui/livres/FormulaireLivre.h"
#include "ui/livres/PoseDeCouverture.h"

#include <QMessageBox>
#include <QPushButton>

namespace Quillet {

FeuilleNouveauLivre::FeuilleNouveauLivre(const Contexte &contexte, const Livre &brouillon, QWidget *parent)
    : FeuilleDeLivre(QStringLiteral("Nouveau livre"), contexte, parent), propose_(brouillon)
{
    QPushButton *abandonner = Boutons::deFeuille(QStringLiteral("Abandonner"));
    QPushButton *ajouter = Boutons::deFeuille(QStringLiteral("Ajouter le livre"));
    Boutons::rendrePrincipal(ajouter);
    QBoxLayout *barre = Pile::rangee({.marges = {20, 12, 20, 16}, .espace = 8}, {Pile::reste(), abandonner, ajouter});
    Pile::colonne(this, {.espace = 0}, {{page(), 1}, filet(Qt::Horizontal), barre});
    connect(abandonner, &QPushButton::clicked, this, &QDialog::reject);
    connect(ajouter, &QPushButton::clicked, this, &FeuilleNouveauLivre::ajouter);
    formulaire_->commencer(brouillon);
    formulaire_->prendreLeFocus();
}

void FeuilleNouveauLivre::ajouter()
{
    if (!formulaire_->verifier())
        return;
    const auto ecrire = [this] {
        const Livre &saisi = formulaire_->livre();
        const auto &couverture = formulaire_->couverture();
        const QList<Livre> livres = EditionLivres::avec(
            contexte_.donnees().livres, couverture ? avecCouverture(contexte_, saisi, *couverture) : saisi);
        contexte_.historique.remplacer(livres, TextesGestes::ajout(saisi));
    };
    if (!tenter(ecrire))
        return;
    emit ajoute(contexte_.donnees().livres.last().id);
    accept();
}

// Much may have been typed.
void FeuilleNouveauLivre::reject()
{
    formulaire_->conclure();
    if (!formulaire_->aSaisi(propose_)) {
        FeuilleDeLivre::reject();
        return;
    }
    auto *question = new QMessageBox(QMessageBox::Question, QStringLiteral("Quillet"),
                                     QStringLiteral("Abandonner ce livre ?"), QMessageBox::NoButton, this);
    question->setInformativeText(QStringLiteral("Ce que vous avez saisi sera perdu."));
    question->setAttribute(Qt::WA_DeleteOnClose);
    const QPushButton *abandonner = question->addButton(QStringLiteral("Abandonner"), QMessageBox::DestructiveRole);
    QPushButton *continuer = question->addButton(QStringLiteral("Continuer"), QMessageBox::RejectRole);
    question->setDefaultButton(continuer);
    question->setEscapeButton(continuer);
    connect(abandonner, &QPushButton::clicked, this, [this] { FeuilleDeLivre::reject(); });
    question->open();
}

} // namespace Quillet
