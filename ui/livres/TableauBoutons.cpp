#include "ui/livres/TableauBoutons.h"

#include "composants/Dessin.h"
#include "textes/Suivant.h"
#include "ui/livres/RangeeBouton.h"

#include <QPainter>

#include <algorithm>

namespace Quillet {

namespace {

bool attend(const TextesBoutons::Ligne &ligne)
{
    return ligne.etat == PrixBouton::Etat::aReporter;
}

} // namespace

TableauBoutons::TableauBoutons(QWidget *parent) : Tableau(RangeeBouton::colonnes(), RangeeBouton::marge, parent)
{
    setContentsMargins(16, 3, 16, 3);
    RangeeBouton::fixerLesLargeurs(*this);
}

void TableauBoutons::montrer(const QList<TextesBoutons::Ligne> &lignes)
{
    if (lignes == lignes_)
        return;
    while (rangees_.size() < lignes.size()) {
        const int rang = static_cast<int>(rangees_.size());
        auto *rangee = new RangeeBouton(*this);
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
    for (int rang = 0; rang < rangees_.size(); ++rang) {
        setRangeeVisible(rang + 1, rang < lignes.size());
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
    peindreLesFilets(peintre);
}

} // namespace Quillet
