#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class QItemSelection;
class QItemSelectionModel;

namespace Quillet {

// The row that a screen reader selects. It does not make it the current one, which lists that follow the current row
// never hear of; keys and pointer make it current in the same breath, and are not told here.
class SelectionDuLecteur : public QObject
{
    Q_OBJECT

public:
    explicit SelectionDuLecteur(const QItemSelectionModel *lignes, QObject *parent);

signals:
    void prise(const QModelIndex &ligne);

private:
    void noter(const QItemSelection &lignes);
    void dire();

    const QItemSelectionModel *lignes_;
    QPersistentModelIndex ligne_;
};

} // namespace Quillet
