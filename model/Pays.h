#pragma once

#include "model/Destination.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Quillet {

// A country or a territory, and the destination that serves it.
struct Pays
{
    QString libelleFr; // with its article, as a buyer reads it: "la Belgique"
    QString libelleEn;
    std::optional<QStringList> autresNoms;      // by which it is searched too
    std::optional<CodeDestination> destination; // none: not settled, the seller chooses
    std::optional<bool> horsUE;                 // as BonDeCommande's
    std::optional<QString> remarque;            // what to know before sending there

    [[nodiscard]] const QString &libelle(Langue langue) const
    {
        switch (langue) {
        case Langue::francais:
            return libelleFr;
        case Langue::anglais:
            return libelleEn;
        }
        Q_UNREACHABLE();
    }
    // As in a list: "Belgique".
    [[nodiscard]] QString nom() const;
    // Every name by which it is known, with and without article, the French one first.
    [[nodiscard]] QStringList noms() const;

    // The one with exactly this label, in whatever language; none for an empty text.
    static std::optional<Pays> designe(const QList<Pays> &pays, const QString &libelle);

    bool operator==(const Pays &) const = default;
};

template <>
inline constexpr auto Json::champs<Pays> = std::tuple{
    Champ{"libelleFr", &Pays::libelleFr},   Champ{"libelleEn", &Pays::libelleEn},
    Champ{"autresNoms", &Pays::autresNoms}, Champ{"destination", &Pays::destination},
    Champ{"horsUE", &Pays::horsUE},         Champ{"remarque", &Pays::remarque},
};

} // namespace Quillet
