#pragma once

#include "model/BonDeCommande.h"

#include <QList>
#include <QString>

#include <utility>

namespace Quillet {

// What is remembered of invoices as long as the program runs, and written nowhere.
class MemoireFactures
{
public:
    // To be told of each change of the order: what was remembered of another is forgotten.
    void suivre(const BonDeCommande &bon);

    // Of the order: the buyer as typed, and the number of the last invoice that left for it; either may be empty.
    [[nodiscard]] const QString &acheteur() const { return acheteur_; }
    [[nodiscard]] const QString &partie() const { return partie_; }
    // Whether an invoice of that number has left, for whatever order.
    [[nodiscard]] bool estPartie(const QString &numero, Vendeur vendeur) const;

    void noterAcheteur(const QString &acheteur) { acheteur_ = acheteur; }
    void noterDepart(const QString &numero, Vendeur vendeur);

private:
    BonDeCommande bon_; // the one that `acheteur_` and `partie_` are about
    QString acheteur_;
    QString partie_;
    QList<std::pair<Vendeur, QString>> parties_;
};

} // namespace Quillet
