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
    // To be told of each change of the order: what is noted of one is not told of another.
    void suivre(const BonDeCommande &bon);

    // Of the order: the buyer as typed, and the number of the last invoice that left for it; either may be empty.
    [[nodiscard]] QString acheteur() const;
    [[nodiscard]] QString partie() const;
    // Whether an invoice of that number has left, for whatever order.
    [[nodiscard]] bool estPartie(const QString &numero, Vendeur vendeur) const;

    void noterAcheteur(const QString &acheteur);
    void noterDepart(const QString &numero, Vendeur vendeur);

private:
    struct Notes
    {
        BonDeCommande vente;
        QString acheteur;
        QString partie;
    };
    [[nodiscard]] Notes notes() const;
    [[nodiscard]] Notes &aNoter();

    BonDeCommande vente_; // the order's
    QList<Notes> notes_;
    QList<std::pair<Vendeur, QString>> parties_;
};

} // namespace Quillet
