#include "ui/livres/ModeleLivres.h"

#include "model/Catalogue.h"
#include "textes/Suivant.h"
#include "textes/TextesBoutons.h"
#include "textes/TextesLivres.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

namespace Quillet {

ModeleLivres::ModeleLivres(const Catalogue &catalogue, QObject *parent)
    : QAbstractListModel(parent), catalogue_(catalogue)
{
    compter();
    rangs_ = ranger();
    connect(&catalogue, &Catalogue::change, this, [this] {
        compter();
        filtrer();
    });
}

void ModeleLivres::setFiltre(const FiltreLivres &filtre)
{
    if (filtre == filtre_)
        return;
    filtre_ = filtre;
    retenus_.clear();
    filtrer();
}

void ModeleLivres::setTarifs(const TarifsColissimo &tarifs)
{
    if (tarifs == tarifs_)
        return;
    tarifs_ = tarifs;
    retenus_.clear();
    comptes_.clear();
    compter();
    filtrer();
}

void ModeleLivres::retenir(qint64 id)
{
    retenus_.insert(id);
    if (!rang(id))
        filtrer();
}

// A book that is as it was is not worked out again: most are, at any change of the catalogue.
void ModeleLivres::compter()
{
    const Donnees &donnees = catalogue_.donnees();
    if (emballages_ != donnees.reglages.emballages || destinations_ != donnees.destinations)
        comptes_.clear();
    emballages_ = donnees.reglages.emballages;
    destinations_ = donnees.destinations;
    const QList<Compte> avant = std::exchange(comptes_, {});
    const QList<Livre> &livres = catalogue_.donnees().livres;
    comptes_.reserve(livres.size());
    for (qsizetype place = 0; place < livres.size(); ++place) {
        const Livre &livre = livres[place];
        if (place < avant.size() && avant[place].livre == livre)
            comptes_.append(avant[place]);
        else
            comptes_.append({livre,
                             tarifs_ ? PrixBouton::aReporter(catalogue_.donnees().boutons(livre, *tarifs_)).size() : 0,
                             FiltreLivres::texteCherche(livre)});
    }
}

QList<ModeleLivres::Rang> ModeleLivres::ranger() const
{
    QList<Rang> rangs;
    const QList<Livre> &livres = catalogue_.donnees().livres;
    for (qsizetype place = 0; place < livres.size(); ++place) {
        const Livre &livre = livres[place];
        const Compte &compte = comptes_[place];
        if (retenus_.contains(livre.id) || filtre_.retient({livre, compte.texteCherche, compte.aReporter}))
            rangs.append({livre.vendeur, livre.id, place});
    }
    std::ranges::stable_sort(rangs, {}, &Rang::vendeur);
    return rangs;
}

// The same books keep the current row and the place in the list.
void ModeleLivres::filtrer()
{
    const QList<Rang> rangs = ranger();
    for (const Rang &rang : rangs)
        retenus_.insert(rang.id);
    if (std::ranges::equal(rangs, rangs_, {}, &Rang::id, &Rang::id)) {
        rangs_ = rangs;
        if (!rangs.isEmpty())
            emit dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    if (std::ranges::is_permutation(rangs, rangs_, {}, &Rang::id, &Rang::id)) {
        reordonner(rangs);
        return;
    }
    beginResetModel();
    rangs_ = rangs;
    endResetModel();
}

void ModeleLivres::reordonner(const QList<Rang> &rangs)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList avant = persistentIndexList();
    QList<qint64> ids;
    for (const QModelIndex &indice : avant)
        ids.append(rangs_[indice.row()].id);
    rangs_ = rangs;
    QModelIndexList apres;
    for (const qint64 id : ids)
        apres.append(index(*rang(id)));
    changePersistentIndexList(avant, apres);
    emit layoutChanged();
}

qsizetype ModeleLivres::aReporter() const
{
    qsizetype somme = 0;
    for (const Compte &compte : comptes_)
        somme += compte.aReporter;
    return somme;
}

const Livre &ModeleLivres::livre(int rang) const
{
    return catalogue_.donnees().livres[rangs_[rang].place];
}

std::optional<int> ModeleLivres::rang(qint64 id) const
{
    const auto trouve = std::ranges::find(rangs_, id, &Rang::id);
    return trouve == rangs_.end() ? std::nullopt : std::optional(static_cast<int>(trouve - rangs_.begin()));
}

std::optional<int> ModeleLivres::suivantAReporter(int rang) const
{
    return suivantDuTour(rang, rowCount(), [this](int autre) { return aReporter(autre) > 0; });
}

bool ModeleLivres::ouvreUnGroupe(int rang) const
{
    return rang == 0 || rangs_[rang - 1].vendeur != rangs_[rang].vendeur;
}

bool ModeleLivres::fermeUnGroupe(int rang) const
{
    return rang == rangs_.size() - 1 || ouvreUnGroupe(rang + 1);
}

QList<qint64> ModeleLivres::ids() const
{
    QList<qint64> ids;
    for (const Rang &rang : rangs_)
        ids.append(rang.id);
    return ids;
}

Qt::ItemFlags ModeleLivres::flags(const QModelIndex &indice) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(indice);
    return indice.isValid() && donnees().personnelles ? flags | Qt::ItemIsDragEnabled : flags;
}

Qt::DropActions ModeleLivres::supportedDropActions() const
{
    return Qt::MoveAction;
}

const Donnees &ModeleLivres::donnees() const
{
    return catalogue_.donnees();
}

QStringList ModeleLivres::mimeTypes() const
{
    return {QStringLiteral("application/x-quillet-livre")};
}

QMimeData *ModeleLivres::mimeData(const QModelIndexList &indices) const
{
    auto *donnees = new QMimeData;
    for (const QModelIndex &indice : indices)
        donnees->setData(mimeTypes().constFirst(), QByteArray::number(livre(indice.row()).id));
    return donnees;
}

std::optional<qint64> ModeleLivres::tire(const QMimeData &donnees) const
{
    bool lu = false;
    const qint64 id = donnees.data(mimeTypes().constFirst()).toLongLong(&lu);
    return lu && rang(id) ? std::optional(id) : std::nullopt;
}

qsizetype ModeleLivres::nombre(Vendeur vendeur) const
{
    return std::ranges::count(rangs_, vendeur, &Rang::vendeur);
}

int ModeleLivres::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rangs_.size());
}

QString ModeleLivres::enMots(int rang) const
{
    const QString mots =
        TextesLivres::enMots(livre(rang), TextesLivres::vendu(livre(rang).vendeur, catalogue_.donnees()));
    return aReporter(rang) == 0 ? mots : mots + QStringLiteral(", ") + TextesBoutons::nombreAReporter(aReporter(rang));
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
        return enMots(indice.row());
    default:
        return {};
    }
}

} // namespace Quillet
