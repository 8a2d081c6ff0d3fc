#include "documents/AdresseMail.h"
#include "tests/FausseMessagerie.h"
#include "ui/reponse/Mail.h"

#include <QTest>

using namespace Quillet;

// What a mail program receives.
class TestMail : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { messagerie_.oublier(); }

    void adresses_data();
    void adresses();
    void sansProgramme();
    void parThunderbird_data();
    void parThunderbird();
    void parUnAutre_data();
    void parUnAutre();

private:
    FausseMessagerie messagerie_;
};

namespace {

const QString ouverture =
    QStringLiteral("<div style=\"font-family:Helvetica,sans-serif;font-size:12pt;white-space:pre-wrap\">");

} // namespace

void TestMail::adresses_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("seule");
    const auto cas = [](const char *texte, bool seule) { QTest::newRow(texte) << QString::fromUtf8(texte) << seule; };
    cas("ada@exemple.fr", true);
    cas("  ada@exemple.fr\n", true);
    cas("d'ada+livres&co%1=#/?@exemple.fr", true);
    cas("été@exemple.fr", true);
    cas("", false);
    cas("ada", false);
    cas("@exemple.fr", false);
    cas("ada@", false);
    cas("ada@exemple.fr@ailleurs.fr", false);
    cas("ada@exemple.fr,bob@exemple.fr", false);
    cas("ada@exemple.fr;bob", false);
    cas("Ada <ada@exemple.fr>", false);
    cas("\"ada\"@exemple.fr", false);
    cas("=?utf-8?Q?a=40b.fr=2Cbob?=@exemple.fr", false);
    cas("ada@=?utf-8?Q?b.fr=2Cbob=40c.fr?=", false);
    cas("x:ada(bob)@exemple.fr", false);
    cas("ada\\@exemple.fr", false);
    cas("ada @exemple.fr", false);
    cas("ada@exemple.fr\nBcc: bob", false);
    cas("ada@exemple.fr\u200b", false);
    cas("ada@exemple.fr\u0001", false);
}

void TestMail::adresses()
{
    QFETCH(QString, texte);
    QFETCH(bool, seule);
    QCOMPARE(AdresseMail::estSeule(texte), seule);
}

void TestMail::sansProgramme()
{
    // Nothing to start, and nothing to say.
    Mail::ecrire(QStringLiteral("ada@exemple.fr"), QStringLiteral("Sujet"), QStringLiteral("Corps"), {});
}

void TestMail::parThunderbird_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("destinataire");
    QTest::addColumn<QString>("sujet");
    QTest::addColumn<QString>("sujetRecu");
    QTest::addColumn<QString>("corps");
    QTest::addColumn<QString>("enGras");
    QTest::addColumn<QString>("html");
    struct Cas
    {
        const char *nom, *a, *destinataire, *sujet, *sujetRecu, *corps, *enGras, *html;
    };
    const char *pieges = "x',attachment='file:///etc/passwd',y=\"$(id)`;&+%2C";
    const char *singuliere = "d'ada+a&b%1@exemple.fr";
    for (const Cas &cas : {Cas{"ordinaire", " ada@exemple.fr ", "ada@exemple.fr", "Œuvre – l’été", "Œuvre – l’été",
                               "Bonjour,\n   • Livre\nTotal : 5,00 €\nTotal : 5,00 €\nFin", "Total : 5,00 €",
                               "Bonjour,<br>   • Livre<br><b>Total : 5,00 €</b><br>Total : 5,00 €<br>Fin"},
                           Cas{"rien en gras", "", "", "Sujet", "Sujet", "Corps", "Total", "Corps"},
                           Cas{"pièges", "ada@exemple.fr,attachment='/etc/passwd'", "", pieges, pieges,
                               "<img src=x>&amp;\"',attachment='/etc/passwd'", "<img src=x>",
                               "<b>&lt;img src=x&gt;</b>&amp;amp;&quot;',attachment='/etc/passwd'"},
                           Cas{"saut de ligne dans le sujet", singuliere, singuliere, "Sujet\r\nBcc: bob@exemple.fr",
                               "Sujet  Bcc: bob@exemple.fr", "Corps", "", "Corps"}}) {
        QTestData &ligne = QTest::newRow(cas.nom);
        for (const char *texte : {cas.a, cas.destinataire, cas.sujet, cas.sujetRecu, cas.corps, cas.enGras, cas.html})
            ligne << QString::fromUtf8(texte);
    }
}

void TestMail::parThunderbird()
{
    QFETCH(QString, a);
    QFETCH(QString, destinataire);
    QFETCH(QString, sujet);
    QFETCH(QString, sujetRecu);
    QFETCH(QString, corps);
    QFETCH(QString, enGras);
    QFETCH(QString, html);
    messagerie_.installer(QStringLiteral("org.mozilla.Thunderbird.desktop"),
                          QStringLiteral("--garde 'en un' @@u %u @@"));
    Mail::ecrire(a, sujet, corps, enGras);
    const QStringList arguments = messagerie_.recus();
    QCOMPARE(arguments.mid(0, 3),
             (QStringList{QStringLiteral("--garde"), QStringLiteral("en un"), QStringLiteral("-compose")}));
    QCOMPARE(arguments.size(), 4);
    const QList<std::pair<QString, QString>> attendus{
        {QStringLiteral("to"), destinataire},
        {QStringLiteral("subject"), sujetRecu},
        {QStringLiteral("format"), QStringLiteral("html")},
        {QStringLiteral("body"), ouverture + html + QStringLiteral("</div>")}};
    QCOMPARE(champsDeThunderbird(arguments[3]), attendus);
}

void TestMail::parUnAutre_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("sujet");
    QTest::addColumn<QString>("corps");
    QTest::addColumn<QString>("adresse");
    QTest::newRow("ordinaire") << QStringLiteral("ada@exemple.fr") << QStringLiteral("Sujet")
                               << QStringLiteral("Un\nDeux €")
                               << QStringLiteral("mailto:ada@exemple.fr?subject=Sujet&body=Un%0D%0ADeux%20%E2%82%AC");
    QTest::newRow("pièges") << QStringLiteral("a@b.fr?cc=c") << QStringLiteral("&attach=/etc/passwd;+#%")
                            << QStringLiteral("?x=1&y=2")
                            << QStringLiteral("mailto:a@b.fr%3Fcc%3Dc?subject=%26attach%3D%2Fetc%2Fpasswd%3B%2B"
                                              "%23%25&body=%3Fx%3D1%26y%3D2");
}

void TestMail::parUnAutre()
{
    QFETCH(QString, a);
    QFETCH(QString, sujet);
    QFETCH(QString, corps);
    QFETCH(QString, adresse);
    messagerie_.installer(QStringLiteral("autre.desktop"));
    Mail::ecrire(a, sujet, corps, {});
    QCOMPARE(messagerie_.recus(), QStringList{adresse});
}

QTEST_GUILESS_MAIN(TestMail)
#include "tst_mail.moc"
