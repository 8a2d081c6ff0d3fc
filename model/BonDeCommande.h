#pragma once

#include "model/Destination.h"
#include "model/Langue.h"
#include "model/Livre.h"
#include "model/Quantite.h"
#include "model/Vendeur.h"

#include <QMap>
#include <QString>

#include <optional>

namespace Quillet {

struct Donnees;
struct Reglages;

// What the seller entered of one order, and for which buyer. What follows from it is a Calcul.
struct BonDeCommande
{
    static constexpr int quantiteMaximale = 99;
    // The packaging whose weight the seller types.
    static QString autrePoids() { return QStringLiteral("Autre poids"); }
    // The packaging of a new order.
    static QString emballageDeDepart(const Reglages &reglages);

    Vendeur vendeur = Vendeur::davrel;
    QMap<qint64, int> quantites; // by a book's id; no entry: none
    QString emballage = QStringLiteral("Enveloppe à bulles");
    Grammes poidsEmballageLibre{100}; // counts only in `autrePoids`
    std::optional<Grammes> poidsPese;
    CodeDestination codeDestination{QStringLiteral("france")};
    bool horsUE = false;
    QString paysLivraison;        // as the buyer wrote it
    std::optional<Langue> langue; // none: not chosen yet
    QString paysTrouve;           // what a search wrote in `paysLivraison`; typed over, it counts no more
    int rangAcheteur = 0;         // since the start: the next buyer may want just the same

    [[nodiscard]] int quantite(const Livre &livre) const { return quantites.value(livre.id); }
    // No copy of any book, of either seller.
    [[nodiscard]] bool estVide() const;
    // What is sold to which buyer, and where: however it is weighed, and whatever words the buyer is written in.
    [[nodiscard]] BonDeCommande vente() const;

    // Keeps the count between 0 and `quantiteMaximale`; without any book left, the next one is another buyer's.
    void ajuster(const Livre &livre, int delta);
    // Another destination asks its own questions: country, language and customs exception start afresh.
    void destiner(const CodeDestination &code);
    // Ready for the next buyer; seller, packaging and destination stay.
    void vider();
    // Lets go of books, seller and packaging that the data do not have any more.
    void suivre(const Donnees &donnees);

    bool operator==(const BonDeCommande &) const = default;
};

} // namespace Quillet
