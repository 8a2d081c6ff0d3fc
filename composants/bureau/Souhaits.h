#pragma once

#include "composants/Theme.h"

#include <QMap>
#include <QVariantMap>

#include <optional>

namespace Quillet {

// What the desktop asks of its programs. A wish that is not said, or not in a way that can be read, is as here.
struct Souhaits
{
    std::optional<Theme::Mode> mode; // none: as Qt's platform theme has it
    bool contraste = false;          // as the newer portals say it, then as GNOME does
    bool contrasteDeGnome = false;
    bool mouvementReduit = false; // the same
    bool animations = true;
    double texte = 1; // times the size of the platform's font, within `tailles`

    [[nodiscard]] Theme::Contraste contrasteVoulu() const
    {
        return contraste || contrasteDeGnome ? Theme::Contraste::renforce : Theme::Contraste::normal;
    }
    [[nodiscard]] bool immobile() const { return mouvementReduit || !animations; }
    // One setting as it now is; those that are none of ours are passed over.
    void retenir(const QString &espace, const QString &cle, const QVariant &valeur);

    // The bounds that GNOME itself gives its setting.
    struct Tailles
    {
        double plusPetite, plusGrande;
    };
    static constexpr Tailles tailles{0.5, 3};

    bool operator==(const Souhaits &) const = default;
};

// The portal's settings: of each namespace, by key.
using ReglagesDuPortail = QMap<QString, QVariantMap>;

Souhaits souhaits(const ReglagesDuPortail &reglages);

// What is left to enlarge texts by, where the display may already do so: on X11 the desktop has put its text size into
// the display's density, which Qt draws everything by (`echelle`); elsewhere it may be in the points an inch (`ppp`).
double agrandissement(double texte, const QString &plateforme, double echelle, double ppp);

} // namespace Quillet
