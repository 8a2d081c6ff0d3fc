#include "ui/tarifs/CarteFamille.h"

#include "composants/Dessin.h"
#include "composants/Formulaire.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/LibelleChiffre.h"
#include "composants/Pile.h"
#include "composants/Tableau.h"
#include "composants/Theme.h"
#include "model/Format.h"

#include <QGridLayout>
#include <QPainter>

namespace Quillet {

namespace {

constexpr int partDuPoids = 1;
constexpr int partDUneZone = 1;
constexpr int margeDeCarte = 18;
constexpr int retrait = 7; // of the figures, for the tint of the one that counts

// A figure; the one that the order in progress pays is tinted.
class CasePrix : public LibelleChiffre
{
public:
    CasePrix(const TextesTarifs::Prix &prix, const QString &zone, const QString &poids)
        : LibelleChiffre(prix.texte), enCours_(prix.enCours)
    {
        setContentsMargins(0, 0, retrait, 0);
        setFont(Theme::enGras(font(), enCours_ ? QFont::DemiBold : QFont::Medium));
        const QString dit = Format::dit(prix.texte);
        setAccessibleName(enCours_ ? QStringLiteral("%1, %2 : %3, palier de la commande en cours").arg(zone, poids, dit)
                                   : QStringLiteral("%1, %2 : %3").arg(zone, poids, dit));
        if (enCours_)
            setToolTip(QStringLiteral("Palier de la commande en cours"));
    }

protected:
    void paintEvent(QPaintEvent *evenement) override
    {
        if (enCours_) {
            QPainter peintre(this);
            peintre.setRenderHint(QPainter::Antialiasing);
            const int largeur = sizeHint().width() + 2 * retrait;
            Dessin::aplat(peintre, QRect(width() - largeur, 0, largeur, height()), 6,
                          Dessin::transparente(Theme::accentTexte(palette()), 0.16));
        }
        LibelleChiffre::paintEvent(evenement);
    }

private:
    bool enCours_;
};

QWidget *tableau(const TextesTarifs::Famille &famille, qsizetype zones)
{
    QList<Tableau::Colonne> colonnes{{QStringLiteral("Poids"), Qt::AlignLeft, partDuPoids}};
    for (const QString &zone : famille.zones)
        colonnes.append({zone, Qt::AlignRight, partDUneZone, retrait});
    auto *tableau = new Tableau(colonnes);
    for (const TextesTarifs::Palier &palier : famille.paliers) {
        QList<QWidget *> cellules{new Libelle(palier.poids)};
        for (qsizetype i = 0; i < famille.zones.size(); ++i)
            cellules.append(new CasePrix(palier.prix[i], famille.zones[i], palier.poids));
        tableau->ajouter(cellules);
    }
    tableau->laisser(static_cast<int>(zones - famille.zones.size()), partDUneZone);
    return tableau;
}

} // namespace

CarteFamille::CarteFamille(const TextesTarifs::Famille &famille, qsizetype zones, QWidget *parent) : QWidget(parent)
{
    LecteurDEcran::jouer(this, QAccessible::Grouping);
    QBoxLayout *colonne =
        Pile::colonne(this, {.marges = {margeDeCarte, 8, margeDeCarte, 12}, .espace = 0}, {tableau(famille, zones)});
    for (const QString &pays : famille.pays) {
        colonne->addSpacing(6);
        colonne->addWidget(Libelle::note(pays));
    }
    setAccessibleName(famille.titre);
}

QWidget *CarteFamille::enLigne(QWidget *rangee, qsizetype zones)
{
    constexpr int marge = margeDeCarte - Formulaire::margeHorizontale;
    auto *ligne = new QWidget;
    auto *valeur = Pile::rangee({.marges = {0, 0, retrait, 0}}, {{rangee, 1}});
    auto *grille = new QGridLayout(ligne);
    grille->setContentsMargins(marge, 0, marge, 0);
    grille->setSpacing(0);
    grille->addLayout(valeur, 0, 0, 1, 2);
    grille->setColumnStretch(0, partDuPoids);
    for (int zone = 1; zone <= zones; ++zone) {
        grille->setColumnStretch(zone, partDUneZone);
        grille->setColumnMinimumWidth(zone, 1);
    }
    return ligne;
}

void CarteFamille::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::carte(peintre, rect(), palette());
}

} // namespace Quillet
