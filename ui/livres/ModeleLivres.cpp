#include "ui/livres/ModeleLivres.h"

#include "model/Catalogue.h"
#include "model/Format.h"
#include "ui/commun/NomsVendeurs.h"

namespace {

bool aDroite(int colonne)
{
    return colonne == ModeleLivres::poids || colonne == ModeleLivres::prix;
}

} // namespace

ModeleLivres::ModeleLivres(const Catalogue &catalogue, QObject *parent)
    : QAbstractTableModel(parent), catalogue_(catalogue)
{
    connect(&catalogue, &Catalogue::change, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

const Livre &ModeleLivres::livre(int ligne) const
{
    return catalogue_.livres()[ligne];
}

int ModeleLivres::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(catalogue_.livres().size());
}

int ModeleLivres::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : nombreDeColonnes;
}

QVariant ModeleLivres::data(const QModelIndex &indice, int role) const
{
    const Livre &livre = this->livre(indice.row());
    if (role == Qt::TextAlignmentRole)
        return QVariant((aDroite(indice.column()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role == Qt::AccessibleTextRole && indice.column() == titre)
        return tr("%1, de %2").arg(livre.titreComplet, livre.auteur);
    if (role == Qt::ToolTipRole && indice.column() == titre)
        return livre.titreComplet;
    if (role != Qt::DisplayRole)
        return {};
    switch (indice.column()) {
    case titre:
        return livre.titre;
    case vendeur:
        return NomsVendeurs::court(livre.vendeur);
    case format:
        return tr("%1 · %2 p.").arg(livre.format, QString::number(livre.pages));
    case poids:
        return livre.poids ? Format::poids(*livre.poids) : tr("Poids à peser");
    case prix:
        return Format::euros(livre.prix);
    case etat:
        return livre.disponible ? tr("Disponible") : tr("Épuisé");
    default:
        return {};
    }
}

QVariant ModeleLivres::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((aDroite(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case titre:
        return tr("Livre");
    case vendeur:
        return tr("Vendeur");
    case format:
        return tr("Format");
    case poids:
        return tr("Poids");
    case prix:
        return tr("Prix");
    default:
        return tr("État");
    }
}
