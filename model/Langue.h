#pragma once

#include <QStringView>

namespace Quillet {

// The language in which a buyer is answered.
enum class Langue { francais, anglais };

struct TraitsDeLangue
{
    const char *brut = nullptr; // the raw value
    const char *locale = "";    // of the CLDR
    QStringView nom;            // in French
    QStringView formeDuPays;    // how the delivery country is to be typed
};

constexpr TraitsDeLangue traits(Langue langue)
{
    switch (langue) {
    case Langue::francais:
        return {"francais", "fr_FR", u"français", u"avec l’article : la Belgique, l’Italie, le Canada"};
    case Langue::anglais:
        return {"anglais", "en_GB", u"anglais", u"pour la description"};
    }
    return {};
}

constexpr const char *valeurBrute(Langue langue)
{
    return traits(langue).brut;
}

} // namespace Quillet
