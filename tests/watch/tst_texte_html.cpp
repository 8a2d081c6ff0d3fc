#include "tests/Rangees.h"
#include "tests/watch/Motifs.h"
#include "watch/Entites.h"
#include "watch/Nombres.h"

using namespace Quillet;

namespace {

// A fragment that two readers see differently must be read in the report of the failure.
#define COMPARER(obtenu, attendu, fragment)                                                                            \
    if ((obtenu) != (attendu))                                                                                         \
    QFAIL(qPrintable(QStringLiteral(#obtenu " : %1").arg(QDebug::toString(fragment))))

const QStringList &morceaux()
{
    static const QStringList liste =
        QStringLiteral(
            "<script|>|<table>|</script>|<ſcript|x>|</SCRIPT "
            ">|</ſcript>|<\uFB06yle>|<td>|</style>|<STYLE>|</\uFB05yle>|"
            "<scripts>|<\uFB06|<table|<tr>|<td>|12| |kg|</td>|<TH\n>|1,|5|\u212Ag|é|</th>|</tr>|</TABLE>|<Table "
            "id=1>|<tr x>|"
            "<td x>|0|,|7|\t|KG|</th>|<td>|&amp;|lt;|</td>|</tr>|<tr\u00AD>|<td\u200B>|<t d>|<th>|3.25|€|</TD>|</tr>|"
            "</table>|<tables>|<tr|<|>|</|<th/>|&|;|</t>|</th>|</tr|>|</tr>|</table|<!-- > "
            "-->|&#x|41;|&#|65|;|&lt;|&gt;|\"|'|"
            "\u00A0|\u202F|\n|\u00AD|\u0301|123456789012345678|٣|\U0001D7D8|g|\u200B|G|gr|\U0001F4E6|2|g")
            .split(u'|')
        + QStringList{QString(QChar(0xD835)), QString(QChar(0xDFD8)), QString(QChar(0)), QString(QChar(0xFEFF)), "|"};
    return liste;
}

} // namespace

class TestTexteHTML : public QObject
{
    Q_OBJECT

private slots:
    void entites()
    {
        for (const auto &[ecrit, attendu] : Rangees<QString>{
                 {"a &amp b", "a &amp b"},
                 {"&amp;lt;", "&lt;"},
                 {"&#233;&#xE9;&#XE9;&eacute;", "éééé"},
                 {"&Eacute;&EACUTE;&Amp;", "É&EACUTE;&Amp;"},
                 {"1&nbsp;€", "1 €"},
                 {"&lt;&gt;&quot;&apos;&rsquo;&lsquo;&laquo;&raquo;&euro;&hellip;&ndash;&mdash;", "<>\"'’‘«»€…–—"},
                 {"&egrave;&ecirc;&agrave;&acirc;&ccedil;&ocirc;&ucirc;&icirc;&iuml;", "èêàâçôûîï"},
                 {"&#x10FFFF;&#128230;", "\U0010FFFF📦"},
                 {"&#x000000E9;", "é"}, // a name of ten characters
                 {"&#0;", QString(QChar(0))},
             })
            QCOMPARE(TexteHTML::decoderEntites(QString(ecrit)), attendu);
        for (const char *intacte :
             {"rien", "&#xD800;", "&#57343;", "&#1114112;", "&#4294967329;", "&#;", "&#x;", "&#+65;", "&# 65;",
              "&#x0x41;", "&#x4G;", "&#6A;", "&;", "&&", "&", "&nbsp&", "&#x0000000E9;"})
            QCOMPARE(TexteHTML::decoderEntites(QString(intacte)), intacte);
    }

    void groupes()
    {
        const QList<QStringList> attendus{{"A1", "A", "1"}, {"b", "b", QString()}};
        QCOMPARE(TexteHTML::groupes("([ab])([\\d]+)?", "📦A1 b c a", 2), attendus);
        QVERIFY(TexteHTML::groupes("(", "(", 2).isEmpty());
    }

    void commeLesMotifs()
    {
        std::mt19937 hasard(2026);
        qsizetype cellules = 0;
        int poids = 0;
        for (int i = 0; i < 10'000; ++i) {
            const QString html = Motifs::fragment(hasard, morceaux());
            const auto tableaux = TexteHTML::tableaux(html);
            const auto grammes = TexteHTML::grammes(html);
            COMPARER(TexteHTML::texte(html), Motifs::texte(html), html);
            COMPARER(tableaux, Motifs::tableaux(html), html);
            COMPARER(TexteHTML::centiemes(html), Motifs::centiemes(html), html);
            COMPARER(grammes, Motifs::grammes(html), html);
            for (const auto &tableau : tableaux)
                for (const auto &rangee : tableau)
                    cellules += rangee.size();
            poids += grammes.has_value();
        }
        QVERIFY(cellules > 500 && poids > 500);
    }

    // Digits, blanks and the ends of words, one character after the other.
    void chaqueSigne()
    {
        for (char32_t signe = 1; signe < 0x20000; signe += signe < 0x10000 ? 1 : 5) {
            const QString c = QStringView(QChar::fromUcs4(signe)).toString();
            const QString texte = QStringLiteral("<style") + c + QStringLiteral("></") + c + QStringLiteral("tyle>5")
                                  + c + QStringLiteral("g, 5g") + c;
            COMPARER(TexteHTML::texte(texte), Motifs::texte(texte), texte);
            COMPARER(TexteHTML::centiemes(c), Motifs::centiemes(c), texte);
            COMPARER(TexteHTML::grammes(texte), Motifs::grammes(texte), texte);
        }
    }
};

QTEST_GUILESS_MAIN(TestTexteHTML)
#include "tst_texte_html.moc"
