#include "ui/commun/EtatVide.h"

#include "ui/Theme.h"
#include "ui/commun/Icone.h"
#include "ui/commun/Libelle.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int coteSymbole = 40;
constexpr int largeurDuTexte = 340;

} // namespace

EtatVide::EtatVide(const QString &symbole, const QString &titre, const QString &raison, QWidget *parent)
    : QWidget(parent),
      symbole_(symbole),
      place_(new QWidget),
      raison_(new Libelle(raison, titre.isEmpty() ? Libelle::Rang::principal : Libelle::Rang::secondaire))
{
    place_->setFixedSize(coteSymbole, coteSymbole);
    auto *grand = new Libelle(titre);
    grand->setFont(Theme::titreSection());
    if (titre.isEmpty())
        grand->hide();
    raison_->setWordWrap(true);
    raison_->setAlignment(Qt::AlignHCenter);
    raison_->setFixedWidth(largeurDuTexte);

    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(20, 20, 20, 28);
    colonne->setSpacing(8);
    colonne->addStretch(1);
    colonne->addWidget(place_, 0, Qt::AlignHCenter);
    colonne->addWidget(grand, 0, Qt::AlignHCenter);
    colonne->addWidget(raison_, 0, Qt::AlignHCenter);
    colonne->addStretch(1);
}

void EtatVide::setRaison(const QString &raison)
{
    raison_->setText(raison);
}

void EtatVide::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Icone::peindre(peintre, symbole_, place_->geometry(), Theme::secondaire(palette()));
}
