#include "composants/bureau/Souhaits.h"

#include <QDBusVariant>

#include <array>
#include <cmath>

namespace Quillet {

namespace {

constexpr int emboitements = 8; // more variants one in the other than any portal sends

// The value within its variants, when it is of the type the setting has.
template <typename Type>
std::optional<Type> lu(QVariant valeur)
{
    for (int i = 0; i < emboitements && valeur.metaType() == QMetaType::fromType<QDBusVariant>(); ++i)
        valeur = valeur.value<QDBusVariant>().variant();
    return valeur.metaType() == QMetaType::fromType<Type>() ? std::optional(valeur.value<Type>()) : std::nullopt;
}

std::optional<Theme::Mode> mode(const QVariant &valeur)
{
    switch (lu<uint>(valeur).value_or(0)) {
    case 1:
        return Theme::Mode::sombre;
    case 2:
        return Theme::Mode::clair;
    default:
        return std::nullopt;
    }
}

double taille(const QVariant &valeur)
{
    const double taille = lu<double>(valeur).value_or(1);
    return taille >= Souhaits::tailles.plusPetite && taille <= Souhaits::tailles.plusGrande ? taille : 1;
}

struct Reglage
{
    const char *espace;
    const char *cle;
    void (*retenir)(Souhaits &, const QVariant &);
};

constexpr std::array<Reglage, 6> suivis{{
    {"org.freedesktop.appearance", "color-scheme", [](Souhaits &s, const QVariant &v) { s.mode = mode(v); }},
    {"org.freedesktop.appearance", "contrast", [](Souhaits &s, const QVariant &v) { s.contraste = lu<uint>(v) == 1U; }},
    {"org.gnome.desktop.a11y.interface", "high-contrast",
     [](Souhaits &s, const QVariant &v) { s.contrasteDeGnome = lu<bool>(v).value_or(false); }},
    {"org.freedesktop.appearance", "reduced-motion",
     [](Souhaits &s, const QVariant &v) { s.mouvementReduit = lu<uint>(v) == 1U; }},
    {"org.gnome.desktop.interface", "enable-animations",
     [](Souhaits &s, const QVariant &v) { s.animations = lu<bool>(v).value_or(true); }},
    {"org.gnome.desktop.interface", "text-scaling-factor", [](Souhaits &s, const QVariant &v) { s.texte = taille(v); }},
}};

} // namespace

void Souhaits::retenir(const QString &espace, const QString &cle, const QVariant &valeur)
{
    for (const Reglage &suivi : suivis)
        if (espace == QLatin1String(suivi.espace) && cle == QLatin1String(suivi.cle))
            suivi.retenir(*this, valeur);
}

Souhaits souhaits(const ReglagesDuPortail &reglages)
{
    Souhaits souhaits;
    for (const Reglage &suivi : suivis)
        suivi.retenir(souhaits, reglages.value(QLatin1String(suivi.espace)).value(QLatin1String(suivi.cle)));
    return souhaits;
}

double agrandissement(double texte, const QString &plateforme, double echelle, double ppp)
{
    constexpr double ordinaires = 96; // points an inch
    const double deja = ppp / ordinaires * (plateforme == u"xcb" ? echelle : 1) / texte;
    // The display itself may be enlarged besides, by a whole number.
    const bool compris = deja > 0.5 && std::abs(deja - std::round(deja)) < 0.02;
    return compris ? 1 : texte;
}

} // namespace Quillet
