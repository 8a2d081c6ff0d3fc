#include "ui/livres/TableauBoutons.h"

#include "ui/Theme.h"
#include "ui/commun/Dessin.h"
#include "ui/livres/RangeeBouton.h"

#include <QGridLayout>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int marge = 16;

// The next row that waits for the seller, from the top again after the last; -1: none.
qsizetype aReporterApres(qsizetype rang, const QList<TextesBoutons::Ligne> &lignes)
{
    for (qsizetype pas = 1; pas < lignes.size(); ++pas) {
        const qsizetype suivant = (rang + pas) % lignes.size();
        if (lignes[suivant].etat == PrixBouton::Etat::aReporter)
            return suivant;
    }
    return -1;
}

} // namespace

TableauBoutons::TableauBoutons(QWidget *parent) : QWidget(parent), grille_(new QGridLayout(this))
{
    grille_->setContentsMargins(marge, 3, marge, 3);
    grille_->setHorizontalSpacing(12);
    grille_->setVerticalSpacing(0);
    RangeeBouton::placerLesTetes(*grille_);
}

void TableauBoutons::montrer(const QList<TextesBoutons::Ligne> &lignes)
{
    if (lignes == lignes_)
        return;
    while (rangees_.size() < lignes.size()) {
        const int rang = static_cast<int>(rangees_.size());
        auto *rangee = new RangeeBouton(*grille_, rang + 1, this);
        connect(rangee, &RangeeBouton::reporter, this, [this, rang] { emit reporter(rang); });
        connect(rangee, &RangeeBouton::garder, this, [this, rang] { emit garder(rang); });
        rangees_.append(rangee);
    }
    const qsizetype traitee = rangeeTraitee(lignes);
    const qsizetype suivante = traitee < 0 ? -1 : aReporterApres(traitee, lignes);
    if (traitee >= 0) // before its button hides: Qt would give the focus to a neighbour
        rangees_[suivante >= 0 ? suivante : traitee]->prendreLeFocus();
    lignes_ = lignes;
    for (qsizetype rang = 0; rang < rangees_.size(); ++rang) {
        rangees_[rang]->setVisible(rang < lignes.size());
        if (rang < lignes.size())
            rangees_[rang]->montrer(lignes[rang]);
    }
    if (traitee >= 0 && suivante < 0)
        emit termine();
}

// The row that the seller has just dealt with; -1: none.
qsizetype TableauBoutons::rangeeTraitee(const QList<TextesBoutons::Ligne> &lignes) const
{
    for (qsizetype rang = 0; rang < std::min(lignes.size(), lignes_.size()); ++rang)
        if (rangees_[rang]->aLeFocus() && lignes_[rang].etat == PrixBouton::Etat::aReporter
            && lignes[rang].etat != PrixBouton::Etat::aReporter)
            return rang;
    return -1;
}

void TableauBoutons::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::carte(peintre, rect(), palette());
    for (qsizetype rang = 0; rang < lignes_.size(); ++rang)
        peintre.fillRect(marge, rangees_[rang]->haut(), width() - 2 * marge, 1, Theme::filet(palette()));
}
