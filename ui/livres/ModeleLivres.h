#pragma once

#include "model/Livre.h"
#include "model/Reglages.h"
#include "model/Tarifs.h"
#include "textes/FiltreLivres.h"

#include <QAbstractListModel>
#include <QSet>

#include <optional>

namespace Quillet {

class Catalogue;
struct Donnees;

// The books that the filter retains, one seller's after the other's, each in the catalogue's order. A book that the
// seller's own work takes out of the filter stays until the filter changes: the list does not move under the hand.
class ModeleLivres : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ModeleLivres(const Catalogue &catalogue, QObject *parent = nullptr);

    [[nodiscard]] const Donnees &donnees() const;

    void setFiltre(const FiltreLivres &filtre);
    // The schedule against which buttons are counted; nothing is counted before there is one.
    void setTarifs(const TarifsColissimo &tarifs);
    // Shows this book whatever the filter says.
    void retenir(qint64 id);

    [[nodiscard]] const Livre &livre(int rang) const;
    // How many of the book's buttons wait for a new price.
    [[nodiscard]] qsizetype aReporter(int rang) const { return comptes_[rangs_[rang].place].aReporter; }
    // The same for the whole catalogue.
    [[nodiscard]] qsizetype aReporter() const;
    // The place of a book; none when it is not shown.
    [[nodiscard]] std::optional<int> rang(qint64 id) const;
    // The next book with buttons to change, from the top again after the last; none but itself: none.
    [[nodiscard]] std::optional<int> suivantAReporter(int rang) const;
    [[nodiscard]] QList<qint64> ids() const;
    // Whether the book opens or closes its seller's group.
    [[nodiscard]] bool ouvreUnGroupe(int rang) const;
    [[nodiscard]] bool fermeUnGroupe(int rang) const;
    [[nodiscard]] qsizetype nombre(Vendeur vendeur) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &indice) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indices) const override;
    // The book that is dragged, if one is.
    [[nodiscard]] std::optional<qint64> tire(const QMimeData &donnees) const;
    [[nodiscard]] QVariant data(const QModelIndex &indice, int role) const override;

private:
    // What is worked out of a book of the catalogue's list.
    struct Compte
    {
        Livre livre;
        qsizetype aReporter;
        QString texteCherche;
    };
    struct Rang
    {
        Vendeur vendeur;
        qint64 id;
        qsizetype place; // in the catalogue's list
    };

    void compter();
    void filtrer();
    void reordonner(const QList<Rang> &rangs);
    [[nodiscard]] QList<Rang> ranger() const;
    [[nodiscard]] QString enMots(int rang) const;

    const Catalogue &catalogue_;
    std::optional<TarifsColissimo> tarifs_;
    // What buttons were last counted with, besides.
    QList<Emballage> emballages_;
    QList<Destination> destinations_;
    FiltreLivres filtre_;
    QSet<qint64> retenus_;  // shown since the filter changed
    QList<Compte> comptes_; // in the catalogue's order
    QList<Rang> rangs_;
};

} // namespace Quillet
