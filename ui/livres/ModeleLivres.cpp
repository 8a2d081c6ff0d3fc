#include "ui/livres/ModeleLivres.h"

#include "model/Catalogue.h"
#include "ui/commun/TextesLivres.h"

#include <algorithm>

ModeleLivres::ModeleLivres(const Catalogue &catalogue, QObject *parent)
    : QAbstractListModel(parent), catalogue_(catalogue), rangs_(ranger())
{
    connect(&catalogue, &Catalogue::change, this, &ModeleLivres::actualiser);
}

QList<ModeleLivres::Rang> ModeleLivres::ranger() const
{
    QList<Rang> rangs;
    for (const Livre &livre : catalogue_.livres())
        rangs.append({livre.vendeur, livre.id, rangs.size()});
    std::ranges::stable_sort(rangs, {}, &Rang::vendeur);
    return rangs;
}

// The same books in the same order keep the current row and the place in the list.
void ModeleLivres::actualiser()
{
    const QList<Rang> rangs = ranger();
    if (rangs == rangs_) {
        if (!rangs_.isEmpty())
            emit dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    rangs_ = rangs;
    endResetModel();
}

const Livre &ModeleLivres::livre(int rang) const
{
    return catalogue_.livres()[rangs_[rang].place];
}

bool ModeleLivres::ouvreUnGroupe(int rang) const
{
    return rang == 0 || rangs_[rang - 1].vendeur != rangs_[rang].vendeur;
}

bool ModeleLivres::fermeUnGroupe(int rang) const
{
    return rang == rangs_.size() - 1 || ouvreUnGroupe(rang + 1);
}

qsizetype ModeleLivres::nombre(Vendeur vendeur) const
{
    return std::ranges::count(rangs_, vendeur, &Rang::vendeur);
}

int ModeleLivres::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rangs_.size());
}

QVariant ModeleLivres::data(const QModelIndex &indice, int role) const
{
    const Livre &livre = this->livre(indice.row());
    switch (role) {
    case Qt::DisplayRole:
        return livre.titre;
    case Qt::ToolTipRole:
        return livre.titreComplet;
    case Qt::AccessibleTextRole:
        return TextesLivres::enMots(livre);
    default:
        return {};
    }
}
