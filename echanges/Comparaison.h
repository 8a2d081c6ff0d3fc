#pragma once

#include "echanges/Manifeste.h"
#include "model/Donnees.h"

#include <QList>
#include <QStringList>

namespace Quillet {

// What an import would replace: the data in force beside the archive's.
struct Comparaison
{
    struct Changement
    {
        QString nom;
        QStringList cles; // of the fields that differ
    };
    struct Liste
    {
        QStringList ajoutes;
        QList<Changement> changes;
        QStringList disparus;

        [[nodiscard]] bool estVide() const { return ajoutes.isEmpty() && changes.isEmpty() && disparus.isEmpty(); }
    };
    // A seller's invoice numbers, that would go on from elsewhere.
    struct Serie
    {
        Vendeur vendeur;
        QString ici; // empty: none yet
        QString la;
        bool recule = false; // numbers that have left would be given again
    };

    Liste livres;   // told by their number, named by their title
    Liste vendeurs; // by their name
    Liste emballages;
    Liste tarifs;       // by the day on which they begin
    bool ordre = false; // of the books
    bool frais = false;
    bool douane = false;
    bool destinations = false; // with the countries

    QList<Serie> series;

    [[nodiscard]] bool estVide() const;

    static Comparaison de(const Donnees &ici, const Donnees &la);
    // Of those that the archive has and that are others here.
    static QList<Serie> desSeries(const SeriesFactures &ici, const SeriesFactures &la);
};

} // namespace Quillet
