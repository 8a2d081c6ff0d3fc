#include "ui/tarifs/CarteGrille.h"

#include "ui/Theme.h"
#include "ui/commun/Dessin.h"
#include "ui/commun/Formulaire.h"
#include "ui/commun/Libelle.h"
#include "ui/commun/NombreRoulant.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

QWidget *ligne(const TextesTarifs::Palier &palier)
{
    auto *prix = new NombreRoulant;
    prix->afficher(palier.prix);
    prix->setFont(Theme::enGras(prix->font(), QFont::Medium));
    auto *rangee = new Formulaire::Rangee(palier.poids, prix);
    rangee->setContentsMargins(0, 3, 0, 3);
    return rangee;
}

} // namespace

CarteGrille::CarteGrille(const TextesTarifs::Grille &grille, QWidget *parent) : QWidget(parent)
{
    auto *nom = new Libelle(grille.nom);
    nom->setFont(Theme::enGras(Theme::titre3()));
    nom->setWordWrap(true);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(18, 16, 18, 14);
    colonne->setSpacing(4);
    colonne->addWidget(nom);
    if (!grille.pays.isEmpty()) {
        auto *pays = new Libelle(grille.pays, Libelle::Rang::secondaire);
        pays->setFont(Theme::encadre());
        pays->setWordWrap(true);
        colonne->addWidget(pays);
    }
    colonne->addSpacing(6);
    for (const TextesTarifs::Palier &palier : grille.paliers)
        colonne->addWidget(ligne(palier));
    colonne->addStretch(1);
    setAccessibleName(grille.nom);
}

void CarteGrille::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::carte(peintre, rect(), palette());
}
