#include "watch/Entites.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace Quillet {

namespace {

constexpr std::array<std::pair<QStringView, char16_t>, 25> entitesNommees{{
    {u"nbsp", u' '},      {u"amp", u'&'},         {u"lt", u'<'},         {u"gt", u'>'},         {u"quot", u'"'},
    {u"apos", u'\''},     {u"rsquo", u'\u2019'},  {u"lsquo", u'\u2018'}, {u"laquo", u'\u00AB'}, {u"raquo", u'\u00BB'},
    {u"euro", u'\u20AC'}, {u"hellip", u'\u2026'}, {u"ndash", u'\u2013'}, {u"mdash", u'\u2014'}, {u"eacute", u'é'},
    {u"egrave", u'è'},    {u"ecirc", u'ê'},       {u"agrave", u'à'},     {u"acirc", u'â'},      {u"ccedil", u'ç'},
    {u"ocirc", u'ô'},     {u"ucirc", u'û'},       {u"icirc", u'î'},      {u"iuml", u'ï'},       {u"Eacute", u'É'},
}};

constexpr qsizetype longueurMaximale = 10; // of a name

// Unlike Qt's own reading of numbers: no sign, no blank, no "0x".
std::optional<char32_t> caractereNumero(QStringView chiffres, unsigned base)
{
    if (chiffres.isEmpty())
        return std::nullopt;
    quint64 numero = 0; // a name's ten characters never overflow it
    for (const QChar signe : chiffres) {
        const char16_t c = signe.unicode();
        const unsigned chiffre = c >= u'0' && c <= u'9'   ? c - u'0'
                                 : c >= u'a' && c <= u'f' ? c - u'a' + 10U
                                 : c >= u'A' && c <= u'F' ? c - u'A' + 10U
                                                          : base;
        if (chiffre >= base)
            return std::nullopt;
        numero = numero * base + chiffre;
    }
    if (numero > QChar::LastValidCodePoint || QChar::isSurrogate(static_cast<char32_t>(numero)))
        return std::nullopt;
    return static_cast<char32_t>(numero);
}

std::optional<char32_t> entite(QStringView nom)
{
    if (nom.startsWith(u"#x") || nom.startsWith(u"#X"))
        return caractereNumero(nom.sliced(2), 16);
    if (nom.startsWith(u'#'))
        return caractereNumero(nom.sliced(1), 10);
    const auto *const trouvee = std::ranges::find(entitesNommees, nom, [](const auto &paire) { return paire.first; });
    return trouvee == entitesNommees.end() ? std::nullopt : std::optional<char32_t>(trouvee->second);
}

} // namespace

QString TexteHTML::decoderEntites(QStringView texte)
{
    if (!texte.contains(u'&'))
        return texte.toString();
    QString resultat;
    resultat.reserve(texte.size());
    qsizetype suite = 0;
    for (qsizetype place = texte.indexOf(u'&'); place >= 0; place = texte.indexOf(u'&', suite)) {
        resultat += texte.sliced(suite, place - suite);
        suite = place + 1;
        const qsizetype longueur =
            texte.sliced(suite).first(std::min(longueurMaximale + 1, texte.size() - suite)).indexOf(u';');
        const auto caractere = longueur < 0 ? std::nullopt : entite(texte.sliced(suite, longueur));
        if (caractere) {
            resultat += QChar::fromUcs4(*caractere);
            suite += longueur + 1;
        } else {
            resultat += u'&';
        }
    }
    return resultat += texte.sliced(suite);
}

} // namespace Quillet
