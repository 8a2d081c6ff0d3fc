#include "tests/Rangees.h"
#include "watch/Appcast.h"
#include "watch/ErreurMiseAJour.h"
#include "watch/FluxSigne.h"

#include <sodium.h>

using namespace Quillet;

namespace {

const QString paquet =
    QStringLiteral("<enclosure url='https://a.invalid/q.deb' length='15' quillet:sha256='%1'/>").arg(QString(64, u'a'));

QString rss(const QString &items, const QString &avant = {})
{
    return avant
           + QStringLiteral("<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                            "xmlns:quillet='https://quillet.example/flux' "
                            "quillet:etabli='2026-12-24T00:00:00Z' "
                            "quillet:expire='2027-06-22T00:00:00Z'><channel><title>Quillet</title>%1</channel></rss>")
                 .arg(items);
}

QString version(const char *numero, const QString &reste = paquet)
{
    return QStringLiteral("<item><sparkle:version>%1</sparkle:version>%2</item>").arg(QLatin1String(numero), reste);
}

// The public half of the key that signs in tests.
SignatureEd25519::Cle cle()
{
    std::array<unsigned char, crypto_sign_SEEDBYTES> graine{};
    graine.fill('q');
    SignatureEd25519::Cle publique{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret{};
    crypto_sign_seed_keypair(publique.data(), secret.data(), graine.data());
    return publique;
}

QString fluxSigne()
{
    QFile fichier(QFINDTESTDATA("pages/appcast.xml"));
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

// What the user would read.
QString offre(const QString &flux, const QString &systeme = "debian13")
{
    try {
        const auto parution = Appcast::aProposer(Appcast::lire(flux, systeme).parutions, *NumeroDeVersion::lire("1.1"));
        return parution ? QStringLiteral("%1 %2 %3 %4")
                              .arg(parution->nom, parution->paquet.toString(), QString::number(parution->longueur),
                                   parution->notes)
                        : QStringLiteral("à jour");
    } catch (const ErreurMiseAJour &erreur) {
        return erreur.texte();
    }
}

} // namespace

// The feed of updates: what it says, what it may not say, which version comes after which, and who signed.
class TestAppcast : public QObject
{
    Q_OBJECT

private slots:
    void ordre()
    {
        for (const char *ordre : {"1.9 < 1.10", "1.2 < 1.2.1", "1.10-beta.2 < 1.10-beta.10", "1.2-alpha < 1.2-beta",
                                  "1.2-rc < 1.2-rc.1", "1.2-rc9 < 1.2rc10", "1.2~rc1 < 1.2", "1.1 < 1.2b1",
                                  "1.2-a.1 < 1.2-a.b", "1.2 = 1.2.0", "1.2+7 = 1.2+9"}) {
            const QStringList parts = QString::fromLatin1(ordre).split(u' ');
            const auto a = NumeroDeVersion::lire(parts[0]);
            const auto b = NumeroDeVersion::lire(parts[2]);
            QVERIFY2(a && b && (*a < *b) == (parts[1] == u'<') && (*a == *b) == (parts[1] == u'='), ordre);
        }
    }

    void numerosIllisibles()
    {
        for (const char *texte : {"", "beta", "1.2-3", "1..2", "1.99999999999"})
            QVERIFY2(!NumeroDeVersion::lire(texte), texte);
    }

    void flux()
    {
        const auto cas = [](const char *nom, const QString &flux, const char *attendu) {
            const Rangee rangee(nom);
            QCOMPARE(offre(flux), attendu);
        };
        const auto avec = [](const char *avant, const char *apres) {
            return rss(version("1.2", QString(paquet).replace(avant, apres)));
        };
        const char *offerte = "1.2 https://a.invalid/q.deb 15 ";
        const QString soulignees = QStringLiteral("Neuf\n%1\n").arg(QString(72, u'=')).repeated(7).trimmed();
        cas("simple", rss(version("1.2"), "<?xml version='1.0' encoding='utf-8'?>\n"), offerte);
        cas("nom et notes à part",
            rss(version("120", QStringLiteral("<description> Plus\n vite </description>"
                                              "<sparkle:shortVersionString>1.2</sparkle:shortVersionString>")
                                   + paquet)),
            "1.2 https://a.invalid/q.deb 15 Plus\n vite");
        cas("en attributs", avec("/>", " sparkle:shortVersionString='1.2'/>").replace(">1.2<", ">12<"), offerte);
        cas("nom trop long", avec("/>", " sparkle:shortVersionString='1%1'/>").arg(QStringLiteral("📖").repeated(20)),
            qUtf8Printable(u'1' + QStringLiteral("📖").repeated(15) + QString::fromLatin1(offerte).sliced(3)));
        cas("nom à rebours", avec("/>", " sparkle:shortVersionString='9&#x202E;'/>"), offerte);
        cas("notes soulignées", rss(version("1.2", paquet + QString("<description>%1</description>").arg(soulignees))),
            qUtf8Printable(QString(offerte) + soulignees));
        cas("autres éléments",
            rss(version("1.2",
                        QStringLiteral("<version>9</version><sparkle:deltas><enclosure/></sparkle:deltas>") + paquet)),
            offerte);
        cas("la plus récente", rss(version("1.1.5") + version("1.2") + version("1.2-rc1")), offerte);
        cas("après une qui n’est pas comprise", rss(version("1.2-3") + version("1.2")), offerte);
        const QString ailleurs = "<enclosure sparkle:os='macos' url='https://a.invalid/q.dmg'/>";
        cas("aussi pour un autre système", rss(version("1.2", paquet + ailleurs)), offerte);
        cas("d’abord pour un autre système seul", rss(version("1.3", ailleurs) + version("1.2")), offerte);
        const QString pour12 =
            QString(paquet).replace(QLatin1String("q.deb"), QLatin1String("12.deb' sparkle:os='debian12"));
        const QString pour13 =
            QString(paquet).replace(QLatin1String("q.deb"), QLatin1String("13.deb' sparkle:os='debian13"));
        const char *precise = "1.2 https://a.invalid/13.deb 15 ";
        cas("un paquet par système", rss(version("1.2", pour12 + pour13)), precise);
        cas("un paquet par système, l’autre après", rss(version("1.2", pour13 + pour12)), precise);
        cas("pour celui-ci plutôt que pour tous", rss(version("1.2", paquet + pour13)), precise);
        cas("pour celui-ci plutôt que pour tous, après", rss(version("1.2", pour13 + paquet)), precise);
        cas("le numéro au seul paquet d’à côté",
            rss("<item>" + QString(paquet).replace("/>", " sparkle:version='1.2'/>") + pour13 + "</item>"), precise);
        cas("pour tout Linux", avec("/>", " sparkle:os='linux'/>"), offerte);
        cas("pour tous, faute de mieux", rss(version("1.2", paquet + pour12)), offerte);
        cas("plus récente pour un autre Debian seul", rss(version("1.3", pour12) + version("1.2", pour13)), precise);
        cas("pour d’autres seuls", rss(version("1.2", pour12 + ailleurs)), "à jour");
        cas("d’abord pour un canal d’essai",
            rss(version("1.3", paquet + QStringLiteral("<sparkle:channel>essai</sparkle:channel>")) + version("1.2")),
            offerte);
        cas("sans version", rss({}), "à jour");
        cas("plus ancienne, même mal faite", rss(version("1.0", {})), "à jour");
        cas("sans numéro", rss(version("")),
            "La liste des mises à jour est illisible : aucun numéro de version n’y est compris.");
        cas("en HTTP", avec("https", "http"), "Mise à jour refusée : son adresse n’est pas sécurisée.");
        cas("adresse mal formée", avec("q.deb", "%zz"), "Mise à jour refusée : son adresse n’est pas sécurisée.");
        for (const char *fin : {"'", "aaag'", "aaaaaa'"})
            cas("empreinte", avec("aaaa'", fin), "Mise à jour refusée : son empreinte n’est pas annoncée.");
        for (const char *date : {"", "2027-06-22", "2027-06-22T00:00:00", "2027-06-31T00:00:00Z"})
            cas("date", rss(version("1.2")).replace("2027-06-22T00:00:00Z", date),
                "La liste des mises à jour est illisible : elle n’est pas datée.");
        cas("sans longueur", avec("'15'", "'-1'"), "Mise à jour refusée : sa longueur n’est pas annoncée.");
        cas("démesurée", avec("'15'", "'67108865'"), "Mise à jour refusée : elle est trop volumineuse.");
        const char *coupe = "La liste des mises à jour est illisible : le document est coupé ou mal formé.";
        cas("coupé", rss(version("1.2")).chopped(6), coupe);
        cas("rien", {}, coupe);
        cas("page", "<html/>", "La liste des mises à jour est illisible : ce n’est pas un flux de mises à jour.");
        cas("bombe", rss(version("&b;"), "<!DOCTYPE rss [<!ENTITY a '1.2'><!ENTITY b '&a;&a;&a;&a;'>]>"),
            "La liste des mises à jour est illisible : un type de document n’y a pas sa place.");
        const QString ouvert = "<a>";
        cas("bombe de niveaux", rss(version("1.2", "<description>" + ouvert.repeated(60'000))),
            "La liste des mises à jour est illisible : ses éléments s’emboîtent trop profondément.");
        QString attributs;
        for (int rang = 0; rang < 501; ++rang)
            attributs += QStringLiteral(" a%1='>'").arg(rang);
        for (const char *avant : {"", "<!-- \" -->", "<?a \"?>", "<![CDATA[<a \"]]>"})
            cas("bombe d’attributs", rss(QString(avant) + QStringLiteral("<a%1/>").arg(attributs)),
                "La liste des mises à jour est illisible : une balise a trop d’attributs.");
    }

    // As `packaging/release` writes it, which its own test makes sure of.
    void fluxDUneParution()
    {
        const QString signe = fluxSigne();
        const QString flux = FluxSigne::contenu(signe, cle());
        const auto lu = Appcast::lire(flux, {});
        QCOMPARE(lu.etabli.toString(Qt::ISODate), "2026-12-24T00:00:00Z");
        QCOMPARE(lu.expire.toString(Qt::ISODate), "2027-06-22T00:00:00Z");
        for (const auto &[systeme, offerte] : Rangees<const char *>{
                 {"debian12", "2.0 https://telecharger.example/2.0~debian12.deb 12 Plus vite & mieux\n• Un"},
                 {"debian13", "2.0 https://telecharger.example/2.0~debian13.deb 13 Plus vite & mieux\n• Un"},
                 {"debian14", "à jour"},
             })
            QCOMPARE(offre(flux, systeme), offerte);
    }

    void fluxAltere()
    {
        const auto refuse = [](const char *nom, const QString &flux, const char *raison) {
            const Rangee rangee(nom);
            QString dit;
            try {
                FluxSigne::contenu(flux, cle());
            } catch (const ErreurMiseAJour &erreur) {
                dit = erreur.texte();
            }
            QCOMPARE(dit, "Impossible de savoir s’il y a une mise à jour : " + QString(raison));
        };
        const QString signe = fluxSigne();
        const qsizetype pied = signe.size() - signe.lastIndexOf("<!--");
        const char *coupe = "la liste reçue est coupée ou n’est pas signée.";
        refuse("rien", {}, coupe);
        refuse("sans signature", signe.chopped(pied), coupe);
        refuse("coupé d’un octet", signe.chopped(1), coupe);
        refuse("suivi", signe + u'\n', coupe);
        const char *autre = "la signature de la liste reçue n’est pas celle de Quillet.";
        refuse("la signature seule", signe.last(pied), autre);
        refuse("coupé au début", signe.sliced(1), autre);
        refuse("précédé", QChar(QChar::ByteOrderMark) + signe, autre);
        refuse("autre numéro", QString(signe).replace(">2.0<", ">9.0<"), autre);
        refuse("autre signature", QString(signe).replace(signe.last(60).first(4), "AAAA"), autre);
        refuse("signature illisible", QString(signe).replace(signe.last(60).first(4), "!!!!"), autre);
    }

    void notes()
    {
        QCOMPARE(Appcast::notes(" a < b\n\n- <c> &amp; d "), "a < b\n\n- <c> &amp; d");
        QCOMPARE(Appcast::notes("<h2>Neuf</h2><p>a <b>b</b><br/>c &amp; d</p><UL class='x'><li>un</li>\n"
                                "<LI>deux<li></ul><script>f('<p>')</script>"),
                 "Neuf\na b\nc & d\n• un\n• deux");
        QCOMPARE(Appcast::notes(QString(20'000, u'a')), QString(10'000, u'a') + u'…');
        const QString livre = "📖";
        QCOMPARE(Appcast::notes(u'a' + livre.repeated(5'000)), u'a' + livre.repeated(4'999) + u'…');
    }

    void signatures()
    {
        SignatureEd25519::Cle cle{};
        SignatureEd25519::Signature signature{};
        std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret{};
        std::array<unsigned char, 1000> octets{};
        crypto_sign_keypair(cle.data(), secret.data());
        crypto_sign_detached(signature.data(), nullptr, octets.data(), octets.size(), secret.data());
        const QByteArray texte = QByteArray(reinterpret_cast<const char *>(cle.data()), 32).toBase64();
        QCOMPARE(SignatureEd25519::cle(texte), cle);
        for (const QByteArray &autre : {texte.chopped(4), texte + texte, texte.chopped(2) + "!="})
            QVERIFY2(!SignatureEd25519::cle(autre), autre.constData());

        QVERIFY(SignatureEd25519::valide(cle, signature, octets));
        QVERIFY(!SignatureEd25519::valide(cle, signature, std::span(octets).first(999)));
        octets[999] ^= 1;
        QVERIFY(!SignatureEd25519::valide(cle, signature, octets));
    }
};

QTEST_GUILESS_MAIN(TestAppcast)
#include "tst_appcast.moc"
