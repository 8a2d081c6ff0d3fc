#pragma once

#include "model/Json.h"
#include "model/Vendeur.h"

#include <QMap>
#include <QString>

namespace Quillet {

// What an archive says of itself.
struct Manifeste
{
    static constexpr qint64 formatConnu = 1; // the latest
    static constexpr QLatin1String exemple{"exemple"};

    qint64 format = formatConnu;
    QString programme; // the version that wrote it
    Jour jour;
    QString origine;   // `exemple`, "administrateur", "utilisateur": whose data were in force
    QString empreinte; // the same for the same content, but for pictures changed under the same name and size

    // One of the example, or beside data that could not be read, has none.
    [[nodiscard]] bool aDesDonneesPropres() const { return origine != exemple; }
    bool operator==(const Manifeste &) const = default;
};

template <>
inline constexpr auto Json::champs<Manifeste> = std::tuple{
    Champ{"format", &Manifeste::format},   Champ{"programme", &Manifeste::programme}, Champ{"jour", &Manifeste::jour},
    Champ{"origine", &Manifeste::origine}, Champ{"empreinte", &Manifeste::empreinte},
};

// The last invoice number of each seller that has one.
using SeriesFactures = QMap<Cle<Vendeur>, QString>;

} // namespace Quillet
