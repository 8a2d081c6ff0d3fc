#include "ui/tarifs/CarteGrille.h"

#include "ui/Theme.h"
#include "ui/commun/Dessin.h"
#include "ui/commun/Libelle.h"
#include "ui/commun/NombreRoulant.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int entreColonnes = 32;

class Ligne : public QWidget
{
public:
    explicit Ligne(const TextesTarifs::Palier &palier)
    {
        // A figure that never rolls: its digits line up from one row to the next.
        auto *prix = new NombreRoulant;
        prix->afficher(palier.prix);
        prix->setFont(Theme::enGras(prix->font(), QFont::Medium));
        auto *rangee = new QHBoxLayout(this);
        rangee->setContentsMargins(0, 6, 0, 6);
        rangee->addWidget(new Libelle(palier.poids), 1);
        rangee->addWidget(prix);
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(0, 0, width(), 1, Theme::filet(palette())); }
};

QGridLayout *lignes(const QList<TextesTarifs::Palier> &paliers, int colonnes)
{
    auto *grille = new QGridLayout;
    grille->setHorizontalSpacing(entreColonnes);
    grille->setVerticalSpacing(0);
    const int hauteur = (static_cast<int>(paliers.size()) + colonnes - 1) / colonnes;
    for (int i = 0; i < paliers.size(); ++i)
        grille->addWidget(new Ligne(paliers[i]), i % hauteur, i / hauteur);
    for (int i = 0; i < colonnes; ++i)
        grille->setColumnStretch(i, 1);
    return grille;
}

} // namespace

CarteGrille::CarteGrille(const TextesTarifs::Grille &grille, int colonnes, QWidget *parent) : QWidget(parent)
{
    auto *nom = new Libelle(grille.nom);
    nom->setFont(Theme::enGras(font()));
    nom->setWordWrap(true);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(18, 14, 18, 14);
    colonne->setSpacing(8);
    colonne->addWidget(nom);
    colonne->addLayout(lignes(grille.paliers, colonnes));
    if (!grille.pays.isEmpty()) {
        auto *pays = new Libelle(grille.pays, Libelle::Rang::secondaire);
        pays->setFont(Theme::legende());
        pays->setWordWrap(true);
        colonne->addWidget(pays);
    }
    colonne->addStretch(1);
    setAccessibleName(grille.nom);
}

void CarteGrille::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::carte(peintre, rect(), palette());
}
