#include "watch/TexteHTML.h"

#include "watch/Entites.h"
#include "watch/Signes.h"

#include <QVarLengthArray>

#include <unicode/regex.h>

#include <initializer_list>

namespace Quillet {

namespace {

struct Balises
{
    QStringView ouverture;
    QStringView fermeture;
};

constexpr Balises script{u"<script", u"</script>"};
constexpr Balises style{u"<style", u"</style>"};
constexpr Balises table{u"<table", u"</table>"};
constexpr Balises rangee{u"<tr", u"</tr>"};

// The next "<" that may begin a tag: of several in a row, the last.
qsizetype prochainChevron(QStringView html, qsizetype depuis)
{
    qsizetype place = html.indexOf(u'<', depuis);
    while (place >= 0 && place + 1 < html.size() && html[place + 1] == u'<')
        ++place;
    return place;
}

// Past the first of these literals from here on, or -1. All begin with "<", and hold no other.
qsizetype apres(QStringView html, qsizetype depuis, std::initializer_list<QStringView> litteraux)
{
    for (qsizetype place = prochainChevron(html, depuis); place >= 0; place = prochainChevron(html, place + 1))
        for (const QStringView litteral : litteraux)
            if (const qsizetype fin = Signes::finDuLitteral(html, place, litteral); fin >= 0)
                return fin;
    return -1;
}

// "<(name|name)\b[\s\S]*?</\1>". A name whose end tag is missing from here on is not looked for again: that, and
// never going back, keeps the time linear.
QList<QStringView> elements(QStringView html, QVarLengthArray<Balises, 2> noms)
{
    QList<QStringView> trouves;
    qsizetype place = 0;
    while (!noms.isEmpty() && (place = prochainChevron(html, place)) >= 0) {
        qsizetype suite = place + 1;
        for (qsizetype i = 0; i < noms.size(); ++i) {
            const qsizetype contenu = Signes::finDuLitteral(html, place, noms[i].ouverture);
            if (contenu < 0 || !Signes::finDeMot(html, contenu))
                continue;
            const qsizetype fin = apres(html, contenu, {noms[i].fermeture});
            if (fin < 0) {
                noms.remove(i);
            } else {
                trouves.append(html.sliced(place, fin - place));
                suite = fin;
            }
            break;
        }
        place = suite;
    }
    return trouves;
}

QString sansScripts(QStringView html)
{
    QString reste;
    reste.reserve(html.size());
    qsizetype suite = 0;
    for (const QStringView element : elements(html, {script, style})) {
        const qsizetype place = element.begin() - html.begin();
        reste += html.sliced(suite, place - suite);
        reste += u' ';
        suite = place + element.size();
    }
    return reste += html.sliced(suite);
}

// "<[^>]*>" becomes a space.
QString sansBalises(QStringView html)
{
    QString reste;
    reste.reserve(html.size());
    qsizetype suite = 0;
    for (qsizetype place = html.indexOf(u'<'); place >= 0; place = html.indexOf(u'<', suite)) {
        const qsizetype fin = html.indexOf(u'>', place);
        if (fin < 0)
            break;
        reste += html.sliced(suite, place - suite);
        reste += u' ';
        suite = fin + 1;
    }
    return reste += html.sliced(suite);
}

// "<t[hd]\b[^>]*>([\s\S]*?)</t[hd]>": what stands in each cell. Without a ">" or an end tag from here on, no later
// cell has one either.
QList<QStringView> cellules(QStringView html)
{
    QList<QStringView> trouvees;
    qsizetype place = 0;
    while ((place = apres(html, place, {u"<td", u"<th"})) >= 0) {
        if (!Signes::finDeMot(html, place))
            continue;
        const qsizetype chevron = html.indexOf(u'>', place);
        if (chevron < 0)
            break;
        const qsizetype fin = apres(html, chevron + 1, {u"</td>", u"</th>"});
        if (fin < 0)
            break;
        constexpr qsizetype fermeture = 5;
        trouvees.append(html.sliced(chevron + 1, fin - fermeture - chevron - 1));
        place = fin;
    }
    return trouvees;
}

} // namespace

QString TexteHTML::texte(QStringView html)
{
    // What Qt calls a space is what "\s" takes, no-break spaces included.
    const QString contenu = html.contains(u'<') ? sansBalises(sansScripts(html)) : html.toString();
    return TexteHTML::decoderEntites(contenu).simplified();
}

QList<TexteHTML::Tableau> TexteHTML::tableaux(QStringView html)
{
    const QString page = sansScripts(html);
    QList<Tableau> lus;
    for (const QStringView element : elements(page, {table})) {
        Tableau tableau;
        for (const QStringView ligne : elements(element, {rangee})) {
            Rangee textes;
            for (const QStringView cellule : cellules(ligne))
                textes.append(texte(cellule));
            tableau.append(textes);
        }
        lus.append(tableau);
    }
    return lus;
}

QList<QStringList> TexteHTML::groupes(const QString &motif, const QString &texte, qsizetype auPlus)
{
    const auto vue = [](const QString &source) {
        return icu::UnicodeString(false, source.utf16(), static_cast<int32_t>(source.size()));
    };
    UErrorCode statut = U_ZERO_ERROR;
    const icu::UnicodeString entree = vue(texte); // the matcher reads it in place
    icu::RegexMatcher recherche(vue(motif), entree, UREGEX_CASE_INSENSITIVE, statut);
    QList<QStringList> trouves;
    while (U_SUCCESS(statut) && trouves.size() < auPlus && recherche.find(statut)) {
        QStringList groupes;
        for (int32_t i = 0; i <= recherche.groupCount(); ++i) {
            const qsizetype debut = recherche.start64(i, statut);
            groupes.append(debut < 0 ? QString() : texte.sliced(debut, recherche.end64(i, statut) - debut));
        }
        trouves.append(groupes);
    }
    return trouves;
}

} // namespace Quillet
