#pragma once

#include "model/Livre.h"

#include <QStringList>

#include <optional>

namespace Quillet {

// Which books the list shows.
struct FiltreLivres
{
    enum class Etat { tous, aReporter, aPeser, epuises };

    // What one book is judged by.
    struct Candidat
    {
        const Livre &livre;
        const QString &texte;       // of `texteCherche`
        qsizetype boutonsAReporter; // how many of its buttons are to be changed
    };

    // Words of a title, an author or an ISBN, whatever their case and accents.
    static QStringList mots(const QString &recherche);
    // Where these words are looked for.
    static QString texteCherche(const Livre &livre);

    QStringList recherche; // of `mots`
    std::optional<Vendeur> vendeur;
    Etat etat = Etat::tous;

    [[nodiscard]] bool retient(const Candidat &candidat) const;

    bool operator==(const FiltreLivres &) const = default;
};

} // namespace Quillet
