#pragma once

#include "model/MemoireDeVente.h"

#include <QList>
#include <QString>

#include <utility>

namespace Quillet {

// What is remembered of invoices as long as the program runs, and written nowhere.
class MemoireFactures
{
public:
    // The order as it is after each change.
    void suivre(const BonDeCommande &bon) { memoire_.suivre(bon); }

    // Of the order: the buyer as typed, and the number of the last invoice that left for it; either may be empty.
    [[nodiscard]] const QString &acheteur() const { return memoire_.faits().acheteur; }
    [[nodiscard]] const QString &partie() const { return memoire_.faits().partie; }
    // Whether an invoice of that number has left, for whatever order.
    [[nodiscard]] bool estPartie(const QString &numero, Vendeur vendeur) const;

    void noterAcheteur(const QString &acheteur);
    void noterDepart(const QString &numero, Vendeur vendeur);

private:
    struct Notes
    {
        QString acheteur;
        QString partie;
    };
    MemoireDeVente<Notes> memoire_;
    QList<std::pair<Vendeur, QString>> parties_;
};

} // namespace Quillet
