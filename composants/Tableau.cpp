#include "composants/Tableau.h"

#include "composants/Dessin.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"

#include <QGridLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Quillet {

namespace {

constexpr int espace = 12; // between columns, px

} // namespace

Tableau::Tableau(const QList<Colonne> &colonnes, int marge, QWidget *parent)
    : QWidget(parent), grille_(new QGridLayout(this)), colonnes_(static_cast<int>(colonnes.size())), marge_(marge)
{
    grille_->setContentsMargins(0, 0, 0, 0);
    grille_->setSpacing(0); // a column without cells would have none: cells hold it themselves
    for (const auto &[texte, alignement, part, retrait, dite] : colonnes) {
        auto *tete = new Libelle(texte, Libelle::Rang::secondaire);
        tete->setFont(Theme::enGras(Theme::encadre()));
        tete->setWordWrap(part > 0);
        // A head that wraps takes the width; any other keeps to its side.
        tete->setAlignment(Qt::AlignBottom | (part > 0 ? alignement : Qt::AlignLeft));
        tete->setContentsMargins(0, 0, retrait, 0);
        tete->setAccessibleName(dite);
        grille_->setColumnStretch(grille_->count(), part);
        placer(tete, part > 0 ? Qt::Alignment() : alignement);
    }
}

void Tableau::placer(QWidget *contenu, Qt::Alignment alignement)
{
    auto *cellule = new QWidget(this);
    const int rang = grille_->count();
    const int avant = rang % colonnes_ > 0 ? espace : 0;
    Pile::colonne(cellule, {.marges = {avant, marge_, 0, marge_}}, {{contenu, 0, alignement}});
    grille_->addWidget(cellule, rang / colonnes_, rang % colonnes_);
}

void Tableau::ajouter(const QList<QWidget *> &contenus)
{
    Q_ASSERT(contenus.size() == colonnes_);
    for (QWidget *contenu : contenus)
        placer(contenu);
}

void Tableau::setLargeurMinimale(int colonne, int largeur)
{
    grille_->setColumnMinimumWidth(colonne, largeur + (colonne > 0 ? espace : 0));
}

void Tableau::laisser(int colonnes, int part)
{
    laissees_ = colonnes;
    for (int colonne = colonnes_; colonne < colonnes_ + laissees_; ++colonne) {
        grille_->setColumnStretch(colonne, part);
        grille_->setColumnMinimumWidth(colonne, 1); // else a column without cells gets no share
    }
}

void Tableau::setRangeeVisible(int rangee, bool visible)
{
    for (int colonne = 0; colonne < colonnes_; ++colonne)
        cellule(rangee, colonne)->setVisible(visible);
}

bool Tableau::estVide() const
{
    return grille_->count() <= colonnes_;
}

QList<int> Tableau::rangees() const
{
    QList<int> montrees;
    for (int rangee = 1; rangee < grille_->count() / colonnes_; ++rangee)
        if (!cellule(rangee, 0)->isHidden())
            montrees.append(rangee);
    return montrees;
}

QWidget *Tableau::cellule(int rangee, int colonne) const
{
    return grille_->itemAt(rangee * colonnes_ + colonne)->widget();
}

std::optional<Tableau::Place> Tableau::place(QWidget *cellule) const
{
    const int rang = grille_->indexOf(cellule);
    return rang >= 0 ? std::optional(Place{rang / colonnes_, rang % colonnes_}) : std::nullopt;
}

QSize Tableau::minimumSizeHint() const
{
    int parts = 0;
    double parPart = 0;
    for (int colonne = 0; colonne < colonnes_; ++colonne)
        if (const int part = grille_->columnStretch(colonne)) {
            parts += part;
            for (int rang = colonne; rang < grille_->count(); rang += colonnes_)
                parPart = std::max(parPart, double(grille_->itemAt(rang)->minimumSize().width()) / part);
        }
    for (int colonne = colonnes_; colonne < colonnes_ + laissees_; ++colonne)
        parts += grille_->columnStretch(colonne);
    return QWidget::minimumSizeHint().expandedTo({static_cast<int>(std::ceil(parts * parPart)), 0});
}

void Tableau::peindreLesFilets(QPainter &peintre) const
{
    const QRect place = contentsRect();
    for (const int rangee : rangees())
        Dessin::filet(peintre, QPoint(place.left(), cellule(rangee, 0)->y()), place.width(), palette());
}

void Tableau::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peindreLesFilets(peintre);
}

} // namespace Quillet
