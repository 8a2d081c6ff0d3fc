#pragma once

#include <QStringView>

namespace Quillet {

// The sellers' places, in the order in which screens name them; the names that documents show are data.
enum class Vendeur { davrel, mireva };

struct TraitsDeVendeur
{
    const char *brut = nullptr; // the raw value
    QStringView nom;            // the short one, of the screens
};

constexpr TraitsDeVendeur traits(Vendeur vendeur)
{
    switch (vendeur) {
    case Vendeur::davrel:
        return {"davrel", u"Davrel"};
    case Vendeur::mireva:
        return {"mireva", u"Mireva"};
    }
    return {};
}

constexpr const char *valeurBrute(Vendeur vendeur)
{
    return traits(vendeur).brut;
}

} // namespace Quillet
