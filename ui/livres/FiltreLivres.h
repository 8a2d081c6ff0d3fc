#pragma once

#include "model/Livre.h"

#include <QString>

#include <optional>

// Which books the list shows.
struct FiltreLivres
{
    enum class Etat { tous, aReporter, aPeser, epuises };

    QString recherche; // words of the title, the author or the ISBN, whatever their case and accents
    std::optional<Vendeur> vendeur;
    Etat etat = Etat::tous;

    // `aReporter` is the number of the book's buttons to change.
    [[nodiscard]] bool retient(const Livre &livre, qsizetype aReporter) const;

    bool operator==(const FiltreLivres &) const = default;
};
