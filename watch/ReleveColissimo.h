#pragma once

#include "model/Tarifs.h"

#include <QDate>
#include <QString>
#include <QUrl>

#include <optional>

namespace Quillet {

// One reading of La Poste's page of Colissimo tariffs.
struct ReleveColissimo
{
    TarifsColissimo tarifs;
    bool dateTrouvee = false; // else the day of the reading stands for the first day in force

    static QUrl adresse();
    // The grids of `modele`, with the tiers that the page shows. Throws ErreurReleve when a grid is missing, when its
    // weights do not rise, or when what it holds is no price list.
    static ReleveColissimo analyser(const QString &page, const TarifsColissimo &modele, QDate releve);
    // The code of the grid that a column's header announces; none for other services.
    static std::optional<CodeGrille> code(const QString &entete);
    // The first day in force that a plain text announces; it may not exist in the calendar.
    static std::optional<Jour> dateDEffet(const QString &texte);

    bool operator==(const ReleveColissimo &) const = default;
};

} // namespace Quillet
