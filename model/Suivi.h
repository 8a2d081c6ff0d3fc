#pragma once

#include "model/MemoireDeVente.h"

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
    [[nodiscard]] Etape suivante() const { return memoire_.faits().suivante; }

    void copier(const TexteACopier &texte);
    [[nodiscard]] bool estCopie(const TexteACopier &texte) const { return fois(texte) > 0; }
    // Empty before the first.
    [[nodiscard]] QString dernierCopie() const { return memoire_.faits().dernierCopie; }
    // Rank of the first of those copied least often: once each is, they start again.
    [[nodiscard]] qsizetype aCopier(const QList<TexteACopier> &textes) const;

private:
    [[nodiscard]] int fois(const TexteACopier &texte) const;

    struct Copie
    {
        QString valeur;
        int fois = 0;
    };
    struct Faits
    {
        std::optional<Centimes> total;
        Etape suivante = Etape::lien;
        QHash<QString, Copie> copies; // by title
        QString dernierCopie;         // its title
    };
    MemoireDeVente<Faits> memoire_;
};

} // namespace Quillet
