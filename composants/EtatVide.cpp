#include "composants/EtatVide.h"

#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QPainter>

namespace Quillet {

namespace {

constexpr int largeurDuTexte = 340;

int coteSymbole()
{
    return Theme::aLaTaille(40);
}

} // namespace

EtatVide::EtatVide(const QString &symbole, const QString &titre, const QString &raison, QWidget *parent)
    : QWidget(parent), place_(new QWidget), titre_(new Libelle({})), raison_(new Libelle({}))
{
    titre_->setFont(Theme::titreSection());
    raison_->setWordWrap(true);
    raison_->setAlignment(Qt::AlignHCenter);
    TailleDuTexte::suivre(this, [this] {
        place_->setFixedSize(coteSymbole(), coteSymbole());
        raison_->setMaximumWidth(Theme::aLaTaille(largeurDuTexte));
    });

    // All the width that there is, up to its own.
    QBoxLayout *milieu = Pile::rangee({}, {Pile::reste(), {raison_, largeurDuTexte}, Pile::reste()});
    Pile::colonne(this, {.marges = {20, 20, 20, 28}, .espace = 8},
                  {Pile::reste(), {place_, 0, Qt::AlignHCenter}, {titre_, 0, Qt::AlignHCenter}, milieu, Pile::reste()});
    montrer(symbole, titre, raison);
}

void EtatVide::montrer(const QString &symbole, const QString &titre, const QString &raison)
{
    symbole_ = symbole;
    titre_->setText(titre);
    titre_->setVisible(!titre.isEmpty());
    raison_->setText(raison);
    raison_->setRang(titre.isEmpty() ? Libelle::Rang::principal : Libelle::Rang::secondaire);
    update();
}

void EtatVide::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Icone::peindre(peintre, symbole_, place_->geometry(), Theme::secondaire(palette()));
}

} // namespace Quillet
