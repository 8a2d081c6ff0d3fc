#pragma once

#include "model/Calcul.h"
#include "model/Reglages.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

namespace Quillet {

// One sale, as it is invoiced.
struct Facture
{
    struct Ligne
    {
        qint64 id = 0; // the book's
        QString designation;
        QString isbn;
        int quantite = 0;
        Centimes prixUnitaire;

        [[nodiscard]] Centimes montant() const { return prixUnitaire * quantite; }
        bool operator==(const Ligne &) const = default;
    };

    static constexpr int exemplaires = 2; // the customs pouch asks for two

    QString numero;
    QDate date;
    IdentiteVendeur vendeur;
    QString acheteur; // name and address as typed, on several lines; may be empty
    QList<Ligne> lignes;
    QString libelleEnvoi;
    Centimes envoi;
    QString codeSH;

    // Of the order in progress. None unless all its books belong to one seller whose identity is known, and its
    // postage is known.
    static std::optional<Facture> de(const Calcul &calcul, const Reglages &reglages, const QString &numero, QDate date,
                                     const QString &acheteur);

    [[nodiscard]] Centimes sousTotal() const; // the books alone
    [[nodiscard]] Centimes total() const { return sousTotal() + envoi; }
    // "Facture 2026-007 – Éditions Davrel"
    [[nodiscard]] QString titre() const;
    // The title with the suffix of a PDF, and without what a file name cannot hold on some system.
    [[nodiscard]] QString nomDeFichier() const;

    bool operator==(const Facture &) const = default;
};

// The seller's address and registration, one printed line each, without the name.
QStringList coordonnees(const IdentiteVendeur &vendeur);

} // namespace Quillet
