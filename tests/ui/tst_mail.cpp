#include "tests/FausseMessagerie.h"
#include "tests/FauxPortail.h"
#include "tests/Rangees.h"
#include "ui/reponse/Mail.h"

#include <QDBusError>
#include <QDBusMessage>

using namespace Quillet;
using namespace std::chrono_literals;

namespace {

const QString surLeBus = "org.exemple.Messagerie";

// A mail program that the bus knows, and that answers when it is told to.
class SurLeBus : public QDBusVirtualObject
{
public:
    explicit SurLeBus(bool repond)
        : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, surLeBus)), repond_(repond)
    {
        if (!bus_.registerVirtualObject("/org/exemple/Messagerie", this) || !bus_.registerService(surLeBus))
            qFatal("%s", qPrintable(bus_.lastError().message()));
    }
    ~SurLeBus() override { QDBusConnection::disconnectFromBus(surLeBus); }
    Q_DISABLE_COPY_MOVE(SurLeBus)

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() == u"Open" && repond_)
            bus.send(message.createReply());
        return true;
    }

private:
    QDBusConnection bus_;
    bool repond_;
};

const QString ouverture = "<div style=\"font-family:Helvetica,sans-serif;font-size:12pt;white-space:pre-wrap\">";

} // namespace

// What a mail program receives.
class TestMail : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { messagerie_.oublier(); }

    void sansProgramme()
    {
        // Nothing to start, and nothing to say.
        ecrire({"ada@exemple.fr", "Sujet", "Corps", {}});
        QVERIFY(temoin_.children().isEmpty());
    }

    void parThunderbird()
    {
        const char *pieges = "x',attachment='file:///etc/passwd',y=\"$(id)`;&+%2C";
        const char *singuliere = "d'ada+a&b%1@exemple.fr";
        using Texte = const char *;
        for (const auto &[a, destinataire, sujet, sujetRecu, corps, enGras, html] :
             Rangees<Texte, Texte, Texte, Texte, Texte, Texte>{
                 {" ada@exemple.fr ", "ada@exemple.fr", "Œuvre – l’été", "Œuvre – l’été",
                  "Bonjour,\n   • Livre\nTotal : 5,00 €\nTotal : 5,00 €\nFin", "Total : 5,00 €",
                  "Bonjour,<br>   • Livre<br><b>Total : 5,00 €</b><br>Total : 5,00 €<br>Fin"},
                 {"", "", "Sujet", "Sujet", "Corps", "Total", "Corps"},
                 {"ada@exemple.fr,attachment='/etc/passwd'", "", pieges, pieges,
                  "<img src=x>&amp;\"',attachment='/etc/passwd'", "<img src=x>",
                  "<b>&lt;img src=x&gt;</b>&amp;amp;&quot;',attachment='/etc/passwd'"},
                 {singuliere, singuliere, "Sujet\r\nBcc: bob@exemple.fr", "Sujet  Bcc: bob@exemple.fr", "Corps", "",
                  "Corps"},
             }) {
            const Rangee rangee(a);
            messagerie_.oublier();
            messagerie_.installer("org.mozilla.Thunderbird.desktop", "--garde 'en un' @@u %u @@");
            ecrire({a, sujet, corps, enGras});
            const QStringList arguments = messagerie_.recus();
            QCOMPARE(arguments.mid(0, 3), (QStringList{"--garde", "en un", "-compose"}));
            QCOMPARE(arguments.size(), 4);
            const QList<std::pair<QString, QString>> attendus{
                {"to", destinataire},
                {"subject", sujetRecu},
                {"format", "html"},
                {"body", ouverture + QString::fromUtf8(html) + QStringLiteral("</div>")}};
            QCOMPARE(champsDeThunderbird(arguments[3]), attendus);
        }
    }

    void parUnAutre()
    {
        messagerie_.installer("autre.desktop");
        ecrire({"a@b.fr?cc=c", "&attach=/etc/passwd;+#%", "Un\nDeux €?x=1&y=2", {}});
        QCOMPARE(messagerie_.recus(),
                 QStringList{"mailto:a@b.fr%3Fcc%3Dc?subject=%26attach%3D%2Fetc%2Fpasswd%3B%2B%23%25"
                             "&body=Un%0D%0ADeux%20%E2%82%AC%3Fx%3D1%26y%3D2"});
    }

    // Which the desktop says to have started as soon as it has asked.
    void parLeBus()
    {
        enum class Elle { absente, muette, repond };
        for (const auto &[nom, elle, attendu] : Rangees<Elle, const char *>{
                 {"absente", Elle::absente, "Messagerie ne s’est pas ouvert."},
                 {"muette", Elle::muette,
                  "Messagerie n’a pas encore répondu. S’il ne s’ouvre pas, lancez-le vous-même, puis recommencez."},
                 {"répond", Elle::repond, ""},
             }) {
            const Rangee rangee(nom);
            std::optional<SurLeBus> programme;
            if (elle != Elle::absente)
                programme.emplace(elle == Elle::repond);
            messagerie_.oublier();
            messagerie_.installerSurLeBus(surLeBus + QStringLiteral(".desktop"));
            dit_.clear();
            ecrire({"ada@exemple.fr", "Sujet", "Corps", {}}, elle == Elle::muette ? 50ms : 1min);
            QTRY_VERIFY(temoin_.children().isEmpty());
            QCOMPARE(dit_, attendu);
        }
    }

private:
    void ecrire(const Mail::Message &message, std::chrono::milliseconds patience = 1min)
    {
        const auto dire = [this](const QString &echec) { dit_ += echec; };
        Mail::ecrire(message, &temoin_, dire, patience);
    }

    BusPrive bus_;
    FausseMessagerie messagerie_;
    QObject temoin_;
    QString dit_;
};

QTEST_GUILESS_MAIN(TestMail)
#include "tst_mail.moc"
