#pragma once

#include "model/Livre.h"

#include <QAbstractTableModel>

class Catalogue;

// The catalogue's books as a table of texts.
class ModeleLivres : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Colonne { titre, vendeur, format, poids, prix, etat, nombreDeColonnes };

    explicit ModeleLivres(const Catalogue &catalogue, QObject *parent = nullptr);

    [[nodiscard]] const Livre &livre(int ligne) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &indice, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Catalogue &catalogue_;
};
