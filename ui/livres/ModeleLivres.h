#pragma once

#include "model/Livre.h"

#include <QAbstractListModel>

class Catalogue;

// The catalogue's books, one seller's after the other's, each in the catalogue's order.
class ModeleLivres : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ModeleLivres(const Catalogue &catalogue, QObject *parent = nullptr);

    [[nodiscard]] const Livre &livre(int rang) const;
    // Whether the book opens or closes its seller's group.
    [[nodiscard]] bool ouvreUnGroupe(int rang) const;
    [[nodiscard]] bool fermeUnGroupe(int rang) const;
    [[nodiscard]] qsizetype nombre(Vendeur vendeur) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &indice, int role) const override;

private:
    struct Rang
    {
        Vendeur vendeur;
        qint64 id;
        qsizetype place; // in the catalogue's list
        bool operator==(const Rang &) const = default;
    };

    [[nodiscard]] QList<Rang> ranger() const;
    void actualiser();

    const Catalogue &catalogue_;
    QList<Rang> rangs_;
};
