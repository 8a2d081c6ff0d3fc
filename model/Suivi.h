#pragma once

#include "model/BonDeCommande.h"

#include <QHash>

namespace Quillet {

// What is done of an order once it is composed, in this order.
enum class Etape { lien, reponse, facture };

// A text of the payment link, to be pasted into PayPal's page.
struct TexteACopier
{
    QString titre;
    QString valeur;
};

// What the seller has done for the present order. It counts as long as the buyer pays the same for the same.
class Suivi
{
public:
    // The order as it is after each change.
    void suivre(const BonDeCommande &bon, const std::optional<Centimes> &total);

    void faire(Etape etape);
    [[nodiscard]] Etape suivante() const { return suivante_; }

    void copier(const TexteACopier &texte);
    [[nodiscard]] bool estCopie(const TexteACopier &texte) const { return fois(texte) > 0; }
    // Empty before the first.
    [[nodiscard]] QString dernierCopie() const { return dernierCopie_; }
    // Rank of the first of those copied least often: once each is, they start again.
    [[nodiscard]] qsizetype aCopier(const QList<TexteACopier> &textes) const;

private:
    struct Copie
    {
        QString valeur;
        int fois = 0;
    };
    [[nodiscard]] int fois(const TexteACopier &texte) const;

    BonDeCommande vente_;
    std::optional<Centimes> total_;
    Etape suivante_ = Etape::lien;
    QHash<QString, Copie> copies_; // by title
    QString dernierCopie_;         // its title
};

} // namespace Quillet
