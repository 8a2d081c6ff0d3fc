#include "composants/EtatVide.h"

#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

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

    auto *milieu = new QHBoxLayout;
    milieu->addStretch(1);
    milieu->addWidget(raison_, largeurDuTexte); // all that there is, up to its own width
    milieu->addStretch(1);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(20, 20, 20, 28);
    colonne->setSpacing(8);
    colonne->addStretch(1);
    colonne->addWidget(place_, 0, Qt::AlignHCenter);
    colonne->addWidget(titre_, 0, Qt::AlignHCenter);
    colonne->addLayout(milieu);
    colonne->addStretch(1);
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
