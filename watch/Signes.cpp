#include "watch/Signes.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace Quillet {

namespace {

UChar32 caractere(QStringView texte, qsizetype place)
{
    const QChar debut = texte[place];
    if (debut.isHighSurrogate() && place + 1 < texte.size() && texte[place + 1].isLowSurrogate())
        return static_cast<UChar32>(QChar::surrogateToUcs4(debut, texte[place + 1]));
    return debut.unicode();
}

// Outside ASCII, only these fold to one ASCII letter.
char16_t plier(char16_t lettre)
{
    constexpr char16_t sLong = 0x017F;
    constexpr char16_t kelvin = 0x212A;
    if (lettre >= u'A' && lettre <= u'Z')
        return static_cast<char16_t>(lettre - u'A' + u'a');
    return lettre == sLong ? u's' : lettre == kelvin ? u'k' : lettre;
}

// What else folds to several letters spells nothing that is looked for here.
QStringView plierEnDeux(char16_t lettre)
{
    switch (lettre) {
    case 0x00DF: // ß
    case 0x1E9E: // its capital
        return u"ss";
    case 0xFB05: // the two ligatures
    case 0xFB06:
        return u"st";
    default:
        return {};
    }
}

} // namespace

qsizetype Signes::finDuLitteral(QStringView texte, qsizetype place, QStringView litteral)
{
    for (qsizetype i = 0; i < litteral.size(); ++place) {
        if (place >= texte.size())
            return -1;
        const char16_t lettre = texte[place].unicode();
        if (plier(lettre) == litteral[i].unicode())
            i += 1;
        else if (const QStringView deux = plierEnDeux(lettre); !deux.isEmpty() && litteral.sliced(i).startsWith(deux))
            i += deux.size();
        else
            return -1;
    }
    return place;
}

// ICU leaves combining and format characters to the word that they follow.
bool Signes::finDeMot(QStringView texte, qsizetype place)
{
    if (place >= texte.size())
        return true;
    const UChar32 suivant = caractere(texte, place);
    constexpr uint32_t duMot = U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK | U_GC_CF_MASK;
    return (U_MASK(u_charType(suivant)) & duMot) == 0 && !u_hasBinaryProperty(suivant, UCHAR_ALPHABETIC);
}

bool Signes::estChiffre(QStringView texte, qsizetype place)
{
    return u_isdigit(caractere(texte, place));
}

qsizetype Signes::finDesChiffres(QStringView texte, qsizetype place, int auPlus)
{
    for (; auPlus > 0 && place < texte.size() && estChiffre(texte, place); --auPlus)
        place += texte[place].isHighSurrogate() ? 2 : 1;
    return place;
}

qsizetype Signes::finDesBlancs(QStringView texte, qsizetype place)
{
    return std::find_if_not(texte.begin() + place, texte.end(), [](QChar signe) { return signe.isSpace(); })
           - texte.begin();
}

} // namespace Quillet
