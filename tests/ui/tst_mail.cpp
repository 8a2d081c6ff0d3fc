#include "ui/reponse/Mail.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gio/gio.h>

// What a mail program receives: a fake one, declared on the desktop as a real one is, notes its arguments.
class TestMail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void adresses_data();
    void adresses();
    void sansProgramme();
    void parThunderbird_data();
    void parThunderbird();
    void parUnAutre_data();
    void parUnAutre();
    void programmeCasse();

private:
    void installer(const QString &nom, const QString &commande) const;
    [[nodiscard]] QStringList recus() const;

    QTemporaryDir dossier_;
};

namespace {

void ecrire(const QString &chemin, const QString &texte)
{
    QDir().mkpath(QFileInfo(chemin).path());
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        qFatal("%s", qPrintable(fichier.errorString()));
    fichier.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Names and values of Thunderbird's option, in their order.
QList<QPair<QString, QString>> champs(const QString &option)
{
    QList<QPair<QString, QString>> champs;
    for (const QString &champ : option.split(u','))
        champs.append({champ.section(u'=', 0, 0), QUrl::fromPercentEncoding(champ.section(u'=', 1).toLatin1())});
    return champs;
}

const QString ouverture =
    QStringLiteral("<div style=\"font-family:Helvetica,sans-serif;font-size:12pt;white-space:pre-wrap\">");

} // namespace

void TestMail::initTestCase()
{
    // Read once by the desktop's library: what changes later is the files in there.
    qputenv("XDG_DATA_HOME", dossier_.filePath(QStringLiteral("donnees")).toUtf8());
    qputenv("XDG_CONFIG_HOME", dossier_.filePath(QStringLiteral("reglages")).toUtf8());
    qputenv("XDG_DATA_DIRS", dossier_.filePath(QStringLiteral("systeme")).toUtf8());
    qputenv("XDG_CONFIG_DIRS", dossier_.filePath(QStringLiteral("systeme")).toUtf8());
    ecrire(dossier_.filePath(QStringLiteral("messagerie")),
           QStringLiteral("#!/bin/sh\nprintf '%s\\n' \"$@\" >'%1.tmp' && mv '%1.tmp' '%1'\n")
               .arg(dossier_.filePath(QStringLiteral("recus"))));
}

void TestMail::cleanup()
{
    QDir(dossier_.filePath(QStringLiteral("donnees"))).removeRecursively();
    QFile::remove(dossier_.filePath(QStringLiteral("recus")));
}

void TestMail::installer(const QString &nom, const QString &commande) const
{
    const QString applications = dossier_.filePath(QStringLiteral("donnees/applications/"));
    ecrire(applications + nom, QStringLiteral("[Desktop Entry]\nType=Application\nName=Messagerie\nExec=%1\n"
                                              "MimeType=x-scheme-handler/mailto;\n")
                                   .arg(commande));
    ecrire(applications + QStringLiteral("mimeapps.list"),
           QStringLiteral("[Default Applications]\nx-scheme-handler/mailto=%1\n").arg(nom));
    // The desktop's library hears of new files a little later.
    const auto connu = [&] {
        GAppInfo *programme = g_app_info_get_default_for_uri_scheme("mailto");
        const bool lui = programme && commande == QString::fromUtf8(g_app_info_get_commandline(programme));
        g_clear_object(&programme);
        return lui;
    };
    if (!QTest::qWaitFor(connu))
        qFatal("%s n’est pas connu du bureau", qPrintable(nom));
}

QStringList TestMail::recus() const
{
    QFile fichier(dossier_.filePath(QStringLiteral("recus")));
    if (!QTest::qWaitFor([&] { return fichier.exists(); }) || !fichier.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(fichier.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

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
    QCOMPARE(Mail::estUneAdresse(texte), seule);
}

void TestMail::sansProgramme()
{
    Mail::ecrire(QStringLiteral("ada@exemple.fr"), QStringLiteral("Sujet"), QStringLiteral("Corps"), {});
    QTest::qWait(100);
    QVERIFY(!QFile::exists(dossier_.filePath(QStringLiteral("recus"))));
}

void TestMail::parThunderbird_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("destinataire");
    QTest::addColumn<QString>("sujet");
    QTest::addColumn<QString>("corps");
    QTest::addColumn<QString>("enGras");
    QTest::addColumn<QString>("html");
    const auto texte = [](const char *utf8) { return QString::fromUtf8(utf8); };
    QTest::newRow("ordinaire") << texte(" ada@exemple.fr ") << texte("ada@exemple.fr") << texte("Œuvre – l’été")
                               << texte("Bonjour,\n   • Livre\nTotal : 5,00 €\nTotal : 5,00 €\nFin")
                               << texte("Total : 5,00 €")
                               << texte("Bonjour,<br>   • Livre<br><b>Total : 5,00 €</b><br>Total : 5,00 €<br>Fin");
    QTest::newRow("rien en gras") << texte("") << texte("") << texte("Sujet") << texte("Corps") << texte("Total")
                                  << texte("Corps");
    QTest::newRow("pièges") << texte("ada@exemple.fr,attachment='/etc/passwd'") << texte("")
                            << texte("x',attachment='file:///etc/passwd',y=\"$(id)`;&+%2C")
                            << texte("<img src=x>&amp;\"',attachment='/etc/passwd'") << texte("<img src=x>")
                            << texte("<b>&lt;img src=x&gt;</b>&amp;amp;&quot;',attachment='/etc/passwd'");
    QTest::newRow("retour à la ligne dans le sujet")
        << texte("d'ada+a&b%1@exemple.fr") << texte("d'ada+a&b%1@exemple.fr") << texte("Sujet\r\nBcc: bob@exemple.fr")
        << texte("Corps") << texte("") << texte("Corps");
}

void TestMail::parThunderbird()
{
    QFETCH(QString, a);
    QFETCH(QString, destinataire);
    QFETCH(QString, sujet);
    QFETCH(QString, corps);
    QFETCH(QString, enGras);
    QFETCH(QString, html);
    installer(QStringLiteral("org.mozilla.Thunderbird.desktop"),
              dossier_.filePath(QStringLiteral("messagerie")) + QStringLiteral(" --garde 'en un' @@u %u @@"));
    Mail::ecrire(a, sujet, corps, enGras);
    const QStringList arguments = recus();
    QCOMPARE(arguments.mid(0, 3),
             (QStringList{QStringLiteral("--garde"), QStringLiteral("en un"), QStringLiteral("-compose")}));
    QCOMPARE(arguments.size(), 4);
    const QList<QPair<QString, QString>> attendus{
        {QStringLiteral("to"), destinataire},
        {QStringLiteral("subject"), sujet.replace(u'\r', u' ').replace(u'\n', u' ')},
        {QStringLiteral("format"), QStringLiteral("html")},
        {QStringLiteral("body"), ouverture + html + QStringLiteral("</div>")}};
    QCOMPARE(champs(arguments[3]), attendus);
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
    installer(QStringLiteral("autre.desktop"), dossier_.filePath(QStringLiteral("messagerie")) + QStringLiteral(" %u"));
    Mail::ecrire(a, sujet, corps, {});
    QCOMPARE(recus(), QStringList{adresse});
}

void TestMail::programmeCasse()
{
    const QString casse = dossier_.filePath(QStringLiteral("cassee"));
    ecrire(casse, QStringLiteral("#!/nulle/part\n"));
    installer(QStringLiteral("thunderbird.desktop"), casse);
    QVERIFY_THROWS_EXCEPTION(Mail::Erreur, Mail::ecrire({}, {}, {}, {}));
}

QTEST_GUILESS_MAIN(TestMail)
#include "tst_mail.moc"
