#include "ui/livres/TableauBoutons.h"

#include "composants/Dessin.h"
#include "composants/Theme.h"
#include "textes/Suivant.h"
#include "ui/livres/RangeeBouton.h"

#include <QGridLayout>
#include <QPainter>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int marge = 16;

bool attend(const TextesBoutons::Ligne &ligne)
{
    return ligne.etat == PrixBouton::Etat::aReporter;
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
    const auto traitee = rangeeTraitee(lignes);
    std::optional<int> suivante;
    if (traitee) {
        suivante =
            suivantDuTour(*traitee, static_cast<int>(lignes.size()), [&](int rang) { return attend(lignes[rang]); });
        // Before its button hides: Qt would give the focus to a neighbour.
        rangees_[suivante.value_or(*traitee)]->prendreLeFocus();
    }
    lignes_ = lignes;
    for (qsizetype rang = 0; rang < rangees_.size(); ++rang) {
        rangees_[rang]->setVisible(rang < lignes.size());
        if (rang < lignes.size())
            rangees_[rang]->montrer(lignes[rang]);
    }
    if (traitee && !suivante)
        emit termine();
}

// The row that the seller has just dealt with.
std::optional<int> TableauBoutons::rangeeTraitee(const QList<TextesBoutons::Ligne> &lignes) const
{
    const auto communes = static_cast<int>(std::min(lignes.size(), lignes_.size()));
    for (int rang = 0; rang < communes; ++rang)
        if (rangees_[rang]->aLeFocus() && attend(lignes_[rang]) && !attend(lignes[rang]))
            return rang;
    return std::nullopt;
}

void TableauBoutons::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::carte(peintre, rect(), palette());
    for (qsizetype rang = 0; rang < lignes_.size(); ++rang)
        peintre.fillRect(marge, rangees_[rang]->haut(), width() - 2 * marge, 1, Theme::filet(palette()));
}

} // namespace Quillet
