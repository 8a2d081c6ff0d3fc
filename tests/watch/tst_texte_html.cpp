#include "tests/watch/Motifs.h"
#include "watch/Entites.h"
#include "watch/Nombres.h"

#include <QTest>

class TestTexteHTML : public QObject
{
    Q_OBJECT

private slots:
    void texte_data();
    void texte();
    void entites_data();
    void entites();
    void nombres_data();
    void nombres();
    void tableaux();
    void groupes();
    void commeLesMotifs();
    void chaqueSigne();
};

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
        + QStringList{QString(QChar(0xD835)), QString(QChar(0xDFD8)), QString(QChar(0)), QString(QChar(0xFEFF)),
                      QStringLiteral("|")};
    return liste;
}

std::optional<qint64> lu(const QString &attendu)
{
    return attendu.isEmpty() ? std::nullopt : std::optional(attendu.toLongLong());
}

} // namespace

void TestTexteHTML::texte_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *html, const char *attendu) {
        QTest::addRow("%s", html) << QString::fromUtf8(html) << QString::fromUtf8(attendu);
    };
    cas("<p>Tarif&nbsp;:</p>\n<p> 4,99&#8239;€ </p>", "Tarif : 4,99 €");
    cas("&lt;b&gt;", "<b>");
    cas("a<br>b<!-- c -->d", "a b d");
    cas("a<script>b</SCRIPT>c<style>d</script>e</style>f", "a c f");
    cas("a<script>b</script >c<scripts>d", "a b c d");
    cas("a<script>b", "a b");
    cas("a < b", "a < b");
    cas("", "");
}

void TestTexteHTML::texte()
{
    QFETCH(QString, html);
    QFETCH(QString, attendu);
    QCOMPARE(TexteHTML::texte(html), attendu);
}

void TestTexteHTML::entites_data()
{
    QTest::addColumn<QString>("ecrit");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *ecrit, const char *attendu) {
        QTest::addRow("%s", ecrit) << QString::fromUtf8(ecrit) << QString::fromUtf8(attendu);
    };
    cas("a &amp b", "a &amp b");
    cas("&amp;lt;", "&lt;");
    cas("&#233;&#xE9;&#XE9;&eacute;", "éééé");
    cas("&Eacute;&EACUTE;&Amp;", "É&EACUTE;&Amp;");
    cas("1&nbsp;€", "1 €");
    cas("&lt;&gt;&quot;&apos;&rsquo;&lsquo;&laquo;&raquo;&euro;&hellip;&ndash;&mdash;", "<>\"'’‘«»€…–—");
    cas("&egrave;&ecirc;&agrave;&acirc;&ccedil;&ocirc;&ucirc;&icirc;&iuml;", "èêàâçôûîï");
    cas("&#x10FFFF;&#128230;", "\U0010FFFF📦");
    for (const char *intacte : {"rien", "&#xD800;", "&#57343;", "&#1114112;", "&#4294967329;", "&#;", "&#x;", "&#+65;",
                                "&# 65;", "&#x0x41;", "&#x4G;", "&#6A;", "&;", "&&", "&", "&nbsp&", "&#x0000000E9;"})
        cas(intacte, intacte);
    cas("&#x000000E9;", "é"); // a name of ten characters
    QTest::newRow("nul") << QStringLiteral("&#0;") << QString(QChar(0));
}

void TestTexteHTML::entites()
{
    QFETCH(QString, ecrit);
    QFETCH(QString, attendu);
    QCOMPARE(Entites::decoder(ecrit), attendu);
}

void TestTexteHTML::nombres_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("centiemes"); // empty: none
    QTest::addColumn<QString>("grammes");
    const auto cas = [](const char *texte, const char *centiemes, const char *grammes) {
        QTest::addRow("%s", texte) << QString::fromUtf8(texte) << QString::fromLatin1(centiemes)
                                   << QString::fromLatin1(grammes);
    };
    cas("3,49 %", "349", "");
    cas("4,9", "490", "");
    cas("1 234,00 €", "100", "");
    cas("2,0005 kg", "200", "2000");
    cas("1.5 kg", "150", "5000");
    cas("3 colis de 1,2,5 kg", "300", "2500");
    cas("5 grammes ou 7 g", "500", "7");
    cas("٣ 2 kg", "", "2000");
    cas("1٣ kg", "", "");
    cas("0,2٣ kg", "", "");
    cas("92233720368547758,07 € 9223372036854775807 g", "9223372036854775807", "9223372036854775807");
    cas("92233720368547758,08 € 9223372036854775,808 kg", "", "");
}

void TestTexteHTML::nombres()
{
    QFETCH(QString, texte);
    QFETCH(QString, centiemes);
    QFETCH(QString, grammes);
    QCOMPARE(Nombres::centiemes(texte), lu(centiemes));
    QCOMPARE(Nombres::grammes(texte), lu(grammes));
}

void TestTexteHTML::tableaux()
{
    const QString page =
        QStringLiteral("<table><TR class=a><th>A<td>B</th><td >C &amp;<b>D</b></td></TR><tr></tr></table>"
                       "<script><table></table></script><tr><td>hors</td></tr>"
                       "<table><tr><td>1<table><tr><td>2</td></tr></table><td>3</td></tr></table><table>");
    const QList<TexteHTML::Tableau> attendus{
        {{QStringLiteral("A B"), QStringLiteral("C & D")}, {}},
        {{QStringLiteral("1 2")}},
    };
    QCOMPARE(TexteHTML::tableaux(page), attendus);
    QCOMPARE(TexteHTML::tableaux(QStringLiteral("<table></table>")), QList<TexteHTML::Tableau>{{}});
}

void TestTexteHTML::groupes()
{
    const auto groupes = [](const char *motif, qsizetype auPlus) {
        return TexteHTML::groupes(QString::fromUtf8(motif), QStringLiteral("📦A1 a b22"), auPlus);
    };
    const QList<QStringList> attendus{{QStringLiteral("A1"), QStringLiteral("A"), QStringLiteral("1")},
                                      {QStringLiteral("a"), QStringLiteral("a"), QString()},
                                      {QStringLiteral("b22"), QStringLiteral("b"), QStringLiteral("22")}};
    QCOMPARE(groupes("([ab])(\\d+)?", 9), attendus);
    QCOMPARE(groupes("([ab])(\\d+)?", 1), attendus.first(1));
    QCOMPARE(groupes("(", 9), QList<QStringList>());
}

void TestTexteHTML::commeLesMotifs()
{
    std::mt19937 hasard(2026);
    qsizetype cellules = 0;
    int poids = 0;
    for (int i = 0; i < 10'000; ++i) {
        const QString html = Motifs::fragment(hasard, morceaux());
        const auto tableaux = TexteHTML::tableaux(html);
        const auto grammes = Nombres::grammes(html);
        COMPARER(TexteHTML::texte(html), Motifs::texte(html), html);
        COMPARER(tableaux, Motifs::tableaux(html), html);
        COMPARER(Nombres::centiemes(html), Motifs::centiemes(html), html);
        COMPARER(grammes, Motifs::grammes(html), html);
        for (const auto &tableau : tableaux)
            for (const auto &rangee : tableau)
                cellules += rangee.size();
        poids += grammes.has_value();
    }
    QVERIFY(cellules > 500 && poids > 500);
}

// Digits, blanks and the ends of words, one character after the other.
void TestTexteHTML::chaqueSigne()
{
    for (char32_t signe = 1; signe < 0x20000; signe += signe < 0x10000 ? 1 : 5) {
        const QString c = QStringView(QChar::fromUcs4(signe)).toString();
        const QString texte = QStringLiteral("<style") + c + QStringLiteral("></") + c + QStringLiteral("tyle>5") + c
                              + QStringLiteral("g, 5g") + c;
        COMPARER(TexteHTML::texte(texte), Motifs::texte(texte), texte);
        COMPARER(Nombres::centiemes(c), Motifs::centiemes(c), texte);
        COMPARER(Nombres::grammes(texte), Motifs::grammes(texte), texte);
    }
}

QTEST_GUILESS_MAIN(TestTexteHTML)
#include "tst_texte_html.moc"
