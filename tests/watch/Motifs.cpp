#include "tests/watch/Motifs.h"

#include "watch/Entites.h"

#include <QHash>

#include <unicode/regex.h>

#include <memory>

namespace Quillet {

namespace {

// As they stand: QString::fromUtf16 would take a leading U+FEFF for a byte-order mark.
QString enQString(const icu::UnicodeString &texte)
{
    return QString(reinterpret_cast<const QChar *>(texte.getBuffer()), texte.length());
}

const icu::RegexPattern &compile(const QString &motif)
{
    static QHash<QString, std::shared_ptr<icu::RegexPattern>> compiles;
    auto &resultat = compiles[motif];
    UErrorCode statut = U_ZERO_ERROR;
    if (!resultat)
        resultat.reset(icu::RegexPattern::compile(motif.utf16(), UREGEX_CASE_INSENSITIVE, statut));
    if (U_FAILURE(statut))
        qFatal("%s : %s", qPrintable(motif), u_errorName(statut));
    return *resultat;
}

QString remplacer(const QString &texte, const QString &motif)
{
    UErrorCode statut = U_ZERO_ERROR;
    const icu::UnicodeString entree(texte.utf16(), static_cast<int32_t>(texte.size()));
    const std::unique_ptr<icu::RegexMatcher> recherche(compile(motif).matcher(entree, statut));
    const icu::UnicodeString sortie = recherche->replaceAll(u" ", statut);
    if (U_FAILURE(statut))
        qFatal("%s : %s", qPrintable(motif), u_errorName(statut));
    return enQString(sortie);
}

QList<QStringList> groupes(const QString &texte, const QString &motif)
{
    UErrorCode statut = U_ZERO_ERROR;
    const icu::UnicodeString entree(texte.utf16(), static_cast<int32_t>(texte.size()));
    const std::unique_ptr<icu::RegexMatcher> recherche(compile(motif).matcher(entree, statut));
    QList<QStringList> trouves;
    while (recherche->find(statut)) {
        QStringList groupes;
        for (int32_t i = 0; i <= recherche->groupCount(); ++i) {
            const icu::UnicodeString groupe = recherche->group(i, statut);
            groupes.append(enQString(groupe));
        }
        trouves.append(groupes);
    }
    if (U_FAILURE(statut))
        qFatal("%s : %s", qPrintable(motif), u_errorName(statut));
    return trouves;
}

QString sansScripts(const QString &html)
{
    return remplacer(html, QStringLiteral(R"(<(script|style)\b[\s\S]*?</\1>)"));
}

bool enAscii(const QString &chiffres)
{
    return std::ranges::all_of(chiffres, [](QChar signe) { return signe < QChar(0x80); });
}

std::optional<qint64> nombre(const QString &entier, const QString &fraction, int decimales)
{
    const QString chiffres = entier + fraction.leftJustified(decimales, u'0', true);
    bool tient = false;
    const qint64 valeur = enAscii(chiffres) ? chiffres.toLongLong(&tient) : 0;
    return tient ? std::optional(valeur) : std::nullopt;
}

} // namespace

QString Motifs::texte(const QString &html)
{
    QString texte = TexteHTML::decoderEntites(remplacer(sansScripts(html), QStringLiteral("<[^>]*>")));
    texte.replace(QChar(0x00A0), u' ').replace(QChar(0x202F), u' ');
    texte = remplacer(texte, QStringLiteral(R"(\s+)"));
    const auto bords = groupes(texte, QStringLiteral(R"(\A[ \t]*([\s\S]*?)[ \t]*\z)"));
    return bords[0][1];
}

QList<TexteHTML::Tableau> Motifs::tableaux(const QString &html)
{
    QList<TexteHTML::Tableau> tableaux;
    for (const QStringList &table : groupes(sansScripts(html), QStringLiteral(R"(<table\b[\s\S]*?</table>)"))) {
        TexteHTML::Tableau tableau;
        for (const QStringList &tr : groupes(table[0], QStringLiteral(R"(<tr\b[\s\S]*?</tr>)"))) {
            TexteHTML::Rangee rangee;
            for (const QStringList &cellule : groupes(tr[0], QStringLiteral(R"(<t[hd]\b[^>]*>([\s\S]*?)</t[hd]>)")))
                rangee.append(texte(cellule[1]));
            tableau.append(rangee);
        }
        tableaux.append(tableau);
    }
    return tableaux;
}

std::optional<qint64> Motifs::centiemes(const QString &texte)
{
    const auto trouves = groupes(texte, QStringLiteral(R"((\d+)(?:[,.](\d{1,2}))?)"));
    return trouves.isEmpty() ? std::nullopt : nombre(trouves[0][1], trouves[0][2], 2);
}

std::optional<qint64> Motifs::grammes(const QString &texte)
{
    const auto trouves = groupes(texte, QStringLiteral(R"((\d+)(?:,(\d+))?\s*(kg|g)\b)"));
    if (trouves.isEmpty())
        return std::nullopt;
    return nombre(trouves[0][1], trouves[0][2], trouves[0][3].toLower() == QStringLiteral("kg") ? 3 : 0);
}

QString Motifs::fragment(std::mt19937 &hasard, const QStringList &morceaux)
{
    const auto parmi = [&](qsizetype nombre) { return static_cast<qsizetype>(hasard()) % nombre; };
    QString texte;
    qsizetype place = parmi(morceaux.size());
    for (qsizetype n = 1 + parmi(60); n > 0; --n) {
        texte += morceaux[place];
        place = parmi(6) == 0 ? parmi(morceaux.size()) : (place + 1) % morceaux.size();
    }
    return texte;
}

} // namespace Quillet
