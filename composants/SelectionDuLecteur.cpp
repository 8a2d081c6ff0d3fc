#include "composants/SelectionDuLecteur.h"

#include <QItemSelectionModel>

namespace Quillet {

SelectionDuLecteur::SelectionDuLecteur(const QItemSelectionModel *lignes, QObject *parent)
    : QObject(parent), lignes_(lignes)
{
    connect(lignes, &QItemSelectionModel::selectionChanged, this, &SelectionDuLecteur::noter);
    connect(lignes, &QItemSelectionModel::currentChanged, this, [this] { ligne_ = QModelIndex(); });
}

void SelectionDuLecteur::noter(const QItemSelection &lignes)
{
    const QModelIndexList choisies = lignes.indexes(); // without those that cannot be chosen, as a separator
    ligne_ = choisies.isEmpty() ? QModelIndex() : choisies.constFirst();
    QMetaObject::invokeMethod(this, &SelectionDuLecteur::dire, Qt::QueuedConnection); // the current row changes after
}

void SelectionDuLecteur::dire()
{
    if (ligne_.isValid()
        && ligne_ != lignes_->currentIndex()) // a list that takes the focus may have a current row first
        emit prise(ligne_);
}

} // namespace Quillet
