#include "composants/Tableau.h"

#include "composants/Libelle.h"
#include "composants/Theme.h"

#include <QGridLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Quillet {

Tableau::Tableau(const QList<Colonne> &colonnes, int marge, QWidget *parent)
    : QWidget(parent), grille_(new QGridLayout(this)), marge_(marge)
{
    grille_->setContentsMargins(0, 0, 0, 0);
    grille_->setHorizontalSpacing(12);
    grille_->setVerticalSpacing(0);
    for (int colonne = 0; colonne < colonnes.size(); ++colonne) {
        const auto &[texte, alignement, part, retrait, dite] = colonnes[colonne];
        auto *tete = new Libelle(texte, Libelle::Rang::secondaire);
        tete->setFont(Theme::enGras(Theme::encadre()));
        tete->setWordWrap(part > 0);
        // A head that wraps takes the width; any other keeps to its side.
        tete->setAlignment(Qt::AlignBottom | (part > 0 ? alignement : Qt::AlignLeft));
        tete->setContentsMargins(0, 0, retrait, 0);
        tete->setAccessibleName(dite);
        grille_->setColumnStretch(colonne, part);
        placer(tete, 0, colonne, part > 0 ? Qt::Alignment() : alignement);
    }
}

void Tableau::placer(QWidget *contenu, int rangee, int colonne, Qt::Alignment alignement)
{
    auto *cellule = new QWidget(this);
    auto *place = new QVBoxLayout(cellule);
    place->setContentsMargins(0, marge_, 0, marge_);
    place->addWidget(contenu, 0, alignement);
    grille_->addWidget(cellule, rangee, colonne);
}

void Tableau::ajouter(const QList<QWidget *> &contenus)
{
    const int rangee = grille_->rowCount();
    for (int colonne = 0; colonne < contenus.size(); ++colonne)
        placer(contenus[colonne], rangee, colonne);
}

void Tableau::setLargeurMinimale(int colonne, int largeur)
{
    grille_->setColumnMinimumWidth(colonne, largeur);
}

void Tableau::setRangeeVisible(int rangee, bool visible)
{
    for (int colonne = 0; colonne < colonnes(); ++colonne)
        cellule(rangee, colonne)->setVisible(visible);
}

int Tableau::colonnes() const
{
    return grille_->columnCount();
}

QList<int> Tableau::rangees() const
{
    QList<int> montrees;
    for (int rangee = 1; rangee < grille_->rowCount(); ++rangee)
        if (!cellule(rangee, 0)->isHidden())
            montrees.append(rangee);
    return montrees;
}

QWidget *Tableau::cellule(int rangee, int colonne) const
{
    return grille_->itemAtPosition(rangee, colonne)->widget();
}

QPoint Tableau::place(QWidget *cellule) const
{
    int rangee = 0;
    int colonne = 0;
    int hauteur = 0;
    int largeur = 0;
    grille_->getItemPosition(grille_->indexOf(cellule), &rangee, &colonne, &hauteur, &largeur);
    return {colonne, rangee};
}

QSize Tableau::minimumSizeHint() const
{
    int parts = 0;
    double parPart = 0;
    for (int colonne = 0; colonne < colonnes(); ++colonne)
        if (const int part = grille_->columnStretch(colonne)) {
            parts += part;
            for (int rangee = 0; rangee < grille_->rowCount(); ++rangee)
                parPart =
                    std::max(parPart, double(grille_->itemAtPosition(rangee, colonne)->minimumSize().width()) / part);
        }
    const int partage = static_cast<int>(std::ceil(parts * parPart)) + grille_->horizontalSpacing() * (colonnes() - 1);
    return QWidget::minimumSizeHint().expandedTo({partage, 0});
}

void Tableau::peindreLesFilets(QPainter &peintre) const
{
    const QRect place = contentsRect();
    for (const int rangee : rangees())
        peintre.fillRect(place.left(), cellule(rangee, 0)->y(), place.width(), 1, Theme::filet(palette()));
}

void Tableau::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peindreLesFilets(peintre);
}

} // namespace Quillet
