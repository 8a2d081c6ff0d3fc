#include "tests/Rangees.h"
#include "tests/serveur/ServeurLocal.h"
#include "watch/Telechargement.h"

#include <QtEndian>

#include <zlib.h>

#include <array>

using namespace Quillet;
using namespace std::chrono_literals;

namespace {

const QString chemin = "/page";

QString inaccessible(const char *detail)
{
    return QStringLiteral("Page inaccessible : %1.").arg(QString::fromUtf8(detail));
}

const QString bonjour = "bonjour";

// What the user gets, the text or the message: exactly one thing, and not at once.
QString issue(const QUrl &adresse, const Limites &limites = {}, Transfert::Usage usage = Transfert::Usage::pagePublique)
{
    Telechargement telechargement(limites, usage);
    QStringList dites;
    QEventLoop boucle;
    const auto noter = [&](const QString &texte) {
        dites.append(texte);
        boucle.quit();
    };
    QObject::connect(&telechargement, &Telechargement::lue, &boucle, noter);
    QObject::connect(&telechargement, &Telechargement::echouee, &boucle,
                     [&](const ErreurReleve &erreur) { noter(erreur.texte()); });
    telechargement.page(adresse);
    if (!dites.isEmpty())
        return QStringLiteral("(dit avant l’heure)");
    QTimer::singleShot(10s, &boucle, &QEventLoop::quit);
    boucle.exec();
    for (int tour = 0; tour < 3; ++tour)
        QCoreApplication::processEvents();
    return telechargement.enCours() ? QStringLiteral("(encore en cours)") : dites.join(" puis ");
}

// The stream that Qt packs, without its own head and foot, in those of gzip.
QByteArray gzip(const QByteArray &clair)
{
    const auto *octets = reinterpret_cast<const Bytef *>(clair.constData());
    const auto somme = static_cast<quint32>(crc32(0, octets, static_cast<uInt>(clair.size())));
    const std::array pied{qToLittleEndian(somme), qToLittleEndian(static_cast<quint32>(clair.size()))};
    return QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\xFF", 10) + qCompress(clair).sliced(6).chopped(4)
           + QByteArray(reinterpret_cast<const char *>(pied.data()), sizeof pied);
}

Reponse compressee(const QByteArray &corps, const QByteArray &codage = "gzip")
{
    return http("200 OK", corps, "Content-Encoding: " + codage + "\r\n");
}

// An answer with its head as given, and nothing that says where the body ends but the end of the line.
Reponse brute(const QByteArray &entetes, const QByteArray &corps = {})
{
    return {"HTTP/1.1 " + entetes + "\r\n\r\n" + corps};
}

Reponse puisSilence(Reponse reponse)
{
    reponse.fermer = false;
    return reponse;
}

} // namespace

// Downloads from a real server on this machine, honest, broken or hostile.
class TestTelechargement : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { ServeurLocal::faireConfiance(); }

    // Encrypted, as the public pages are: on a plain line the platform sometimes takes a cut chunk for whole.
    void reponses()
    {
        const auto cas = [](const char *nom, const QList<Reponse> &reponses, const QString &attendu,
                            const Limites &limites = {}) {
            const Rangee rangee(nom);
            ServeurLocal serveur(ServeurLocal::Certificat::sur);
            for (qsizetype rang = 0; rang < reponses.size(); ++rang) // of /0, /1…
                serveur.servir(QStringLiteral("/%1").arg(rang), reponses[rang]);
            QCOMPARE(issue(serveur.adresse("/0"), limites), attendu);
        };
        const auto vers = [](const char *cible) { return redirection(QUrl(cible)); };
        const auto lente = [](int octets) {
            return Reponse{http("200 OK", QByteArray(octets, 'a')).octets, true, 10ms};
        };
        const QString absente = inaccessible("réponse 404 de localhost");
        const QString interrompue = inaccessible("connexion interrompue");
        const QString illisible = "La page a changé de forme : texte illisible. Vérifiez à la main.";
        const QString malCompressee = inaccessible("contenu compressé illisible");

        cas("honnête", {http("200 OK", "<p>é € 😀</p>")}, "<p>é € 😀</p>");
        cas("vide", {http("200 OK")}, {});
        cas("sans longueur", {brute("200 OK", "bonjour")}, bonjour);
        cas("204", {brute("204 No Content")}, inaccessible("réponse 204 de localhost"));
        cas("404", {http("404 Not Found", "bonjour")}, absente);
        cas("coupé", {brute("200 OK\r\nContent-Length: 8", "bonjour")}, interrompue);
        cas("statut coupé", {Reponse{"HTTP/1.1 200 O"}}, interrompue);
        cas("en-tête coupé", {Reponse{"HTTP/1.1 200 OK\r\nContent-Le"}}, interrompue);
        cas("203 coupé", {brute("203 Autre\r\nContent-Length: 8", "bonjour")},
            inaccessible("réponse 203 de localhost"));
        const QByteArray parMorceaux = "200 OK\r\nTransfer-Encoding: chunked";
        cas("morceau coupé", {brute(parMorceaux, "8\r\nbonjour")}, interrompue);
        cas("dernier morceau absent", {brute(parMorceaux, "7\r\nbonjour\r\n")}, interrompue);

        cas("octet isolé", {http("200 OK", "bon\xE9jour")}, illisible);
        cas("caractère coupé à la fin", {http("200 OK", "bonjour \xE2\x82")}, illisible);

        cas("gzip", {compressee(gzip("bonjour"))}, bonjour);
        cas("gzip, autre nom", {compressee(gzip("bonjour"), " X-GZip")}, bonjour);
        cas("pas de codage", {compressee("bonjour", "identity")}, bonjour);
        cas("gzip coupé", {compressee(gzip("bonjour").chopped(1))}, malCompressee);
        cas("gzip absent", {compressee({})}, malCompressee);
        cas("gzip suivi", {compressee(gzip("bonjour") + "a")}, malCompressee);
        cas("codage inconnu", {compressee("bonjour", "br")}, malCompressee);

        cas("redirigée", {http("301 Moved Permanently", "parti", "Location: /1\r\n"), http("200 OK", "bonjour")},
            bonjour);
        cas("redirigée, d’une longue page",
            {http("301 Moved Permanently", QByteArray(1 << 20, 'a'), "Location: /1\r\n"), http("200 OK", "bonjour")},
            bonjour);
        cas("en rond", {vers("/1"), vers("/0")}, inaccessible("trop de redirections"));
        cas("nulle part", {brute("301 Moved Permanently")}, inaccessible("réponse 301 de localhost"));
        cas("vers un fichier", {vers("file:///etc/passwd")}, inaccessible("réponse 302 de localhost"));
        const QString connexionImpossible = inaccessible("connexion impossible");
        const QUrl portFerme = ServeurLocal(ServeurLocal::Certificat::sur).adresse(chemin); // closed at once
        cas("vers un port fermé", {redirection(portFerme)}, connexionImpossible);
        // Refused on this machine, whatever its network.
        cas("sans route", {vers("https://255.255.255.255")}, connexionImpossible);
        cas("vers le HTTP", {redirection(clair_.adresse(chemin))},
            inaccessible("redirection vers une adresse non sécurisée"));
        cas("certificat inconnu", {redirection(inconnu_.adresse(chemin))},
            inaccessible("connexion sécurisée impossible"));

        const auto flot = [](const QByteArray &debut, const QByteArray &suite) {
            return puisSilence({debut + suite.repeated(1 + (1 << 20) / suite.size())});
        };
        const QByteArray statut = "HTTP/1.1 200 OK\r\n";
        const QByteArray annonce = "HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n";
        cas("annoncée", {Reponse{annonce + http("200 OK", "bonjour").octets}}, bonjour);
        cas("pas du HTTP", {Reponse{"SSH-2.0-autre 200\r\n\r\n"}}, inaccessible("réponse 0 de localhost"));
        cas("en-tête sans fin", {flot(statut + "x: ", "a")}, interrompue);
        cas("en-têtes sans fin", {flot(statut, "x: a\r\n")}, interrompue);
        cas("annonces sans fin", {flot({}, annonce)}, interrompue);
        cas("long en-tête", {brute("200 OK\r\nx: " + QByteArray(60'000, 'a'), "bonjour")}, bonjour);
        cas("morceau négatif", {brute(parMorceaux, "-7\r\nbonjour")}, interrompue);
        cas("petits morceaux", {brute(parMorceaux, QByteArray("1;x\r\na\r\n").repeated(50'000) + "0\r\n\r\n")},
            QString(50'000, u'a'));

        const QString silence = inaccessible("délai d’attente dépassé");
        const Limites bref{.silence = 500ms};
        cas("muet", {puisSilence({})}, silence, bref);
        cas("tu en chemin", {puisSilence(brute("200 OK\r\nContent-Length: 8", "bonjour"))}, silence, bref);
        cas("404 tu en chemin", {puisSilence(brute("404 Not Found\r\nContent-Length: 8", "bonjour"))}, absente, bref);
        cas("redirigée, puis muet", {vers("/1"), puisSilence({})}, silence, bref);
        cas("redirection sans fin", {puisSilence(brute("302 Found\r\nLocation: /1\r\nContent-Length: 9", "parti"))},
            silence, bref);
        cas("lent mais vif", {lente(60)}, QString(60, u'a'), bref);
        cas("trop lent", {lente(500)}, inaccessible("téléchargement trop long"), {.silence = 500ms, .duree = 700ms});

        const QString grosse = inaccessible("page trop volumineuse");
        const Limites petite{.taille = 200'000};
        const QByteArray juste(petite.taille, 'a');
        cas("juste", {http("200 OK", juste)}, juste, petite);
        cas("annoncé trop gros", {puisSilence(brute("200 OK\r\nContent-Length: 200001"))}, grosse, petite);
        cas("trop gros", {brute("200 OK", juste + 'a')}, grosse, petite);
        cas("juste, compressé", {compressee(gzip(juste))}, juste, petite);
        cas("trop gros, compressé", {compressee(gzip(juste + 'a'))}, grosse, petite);
    }

    void sansServeur()
    {
        QCOMPARE(issue(QUrl(QStringLiteral("http://") + QString(64, u'a'))), inaccessible("serveur introuvable"));
        QCOMPARE(issue(QUrl::fromLocalFile(QFINDTESTDATA("tst_telechargement.cpp"))), inaccessible("réponse 0 de "));
    }

    void entetes()
    {
        ServeurLocal serveur;
        const QByteArray temoins =
            "Set-Cookie: a=1; Path=/\r\nset-cookie:b=2\r\nSet-Cookie: c=" + QByteArray(5000, '3');
        serveur.servir(chemin, http("302 Found", {}, "Location: fin?a=%20b#c\r\n" + temoins + "\r\n"));
        serveur.servir("/fin?a=%20b", http("200 OK", "bonjour"));
        const auto hote = serveur.adresse({}).authority().toLatin1();
        for (const auto &[nom, usage, agent, rendus] : Rangees<Transfert::Usage, QByteArray, QByteArray>{
                 {"page publique", Transfert::Usage::pagePublique,
                  "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 (KHTML, like Gecko) "
                  "Version/18.0 Safari/605.1.15",
                  "b=2; a=1"},
                 {"mise à jour", Transfert::Usage::miseAJour, "Quillet", ""},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(issue(serveur.adresse(chemin), {}, usage), bonjour);
            const QByteArrayList requetes = serveur.requetes().last(2);
            QVERIFY(requetes[0].startsWith("GET /page HTTP/1.1\r\n"));
            QVERIFY(requetes[1].startsWith("GET /fin?a=%20b HTTP/1.1\r\n"));
            QCOMPARE(entete(requetes[1], "Cookie"), rendus);
            for (const QByteArray &requete : requetes) {
                QCOMPARE(entete(requete, "Host"), hote);
                QCOMPARE(entete(requete, "User-Agent"), agent);
                QCOMPARE(entete(requete, "Accept-Language"), QByteArray("fr-FR,fr;q=0.9"));
                QCOMPARE(entete(requete, "Accept-Encoding"), QByteArray("gzip"));
            }
        }
    }

    // The limit holds on the line as well, not only on what is kept.
    void arreteLeServeur()
    {
        ServeurLocal serveur;
        serveur.servir(chemin, brute("200 OK", QByteArray(64 << 20, 'a')));
        QCOMPARE(issue(serveur.adresse(chemin), {.taille = 100'000}), inaccessible("page trop volumineuse"));
        QTRY_COMPARE(serveur.ouvertes(), 0);
        QVERIFY2(serveur.envoyes() < 24 << 20, qPrintable(QString::number(serveur.envoyes())));
    }

    // One object, page after page, each asked for by whoever hears the one before: nothing is left of that one.
    void enchaine()
    {
        clair_.servir(chemin, http("200 OK", "bonjour"));
        clair_.servir("/gros", http("200 OK", QByteArray(200, 'a')));
        QStringList chemins{"/gros", "/rien", chemin, chemin};
        QStringList dites;
        Telechargement telechargement(Limites{.taille = 100});
        const auto suivante = [&] {
            if (!chemins.isEmpty())
                telechargement.page(clair_.adresse(chemins.takeFirst()));
        };
        const auto noter = [&](const QString &texte) {
            dites.append(texte);
            suivante();
        };
        connect(&telechargement, &Telechargement::lue, this, noter);
        connect(&telechargement, &Telechargement::echouee, this, [&](const auto &erreur) { noter(erreur.texte()); });
        suivante();
        QTRY_COMPARE(dites, (QStringList{inaccessible("page trop volumineuse"),
                                         inaccessible("réponse 404 de localhost"), bonjour, bonjour}));
    }

    void detruitEnRoute()
    {
        for (const qint64 octetsEnvoyes : {0, 1 << 20}) { // by the server, when the download is destroyed
            ServeurLocal serveur(ServeurLocal::Certificat::sur);
            serveur.servir(chemin, puisSilence(brute("200 OK", QByteArray(8 << 20, 'a'))));
            auto telechargement = std::make_unique<Telechargement>();
            int dits = 0;
            connect(telechargement.get(), &Telechargement::lue, this, [&] { ++dits; });
            connect(telechargement.get(), &Telechargement::echouee, this, [&] { ++dits; });
            telechargement->page(serveur.adresse(chemin));
            QTRY_VERIFY(serveur.envoyes() >= octetsEnvoyes);
            QVERIFY(telechargement->enCours());
            telechargement.reset();
            QTRY_COMPARE(serveur.ouvertes(), 0);
            QCOMPARE(dits, 0);
        }
    }

    void detruitParUnSignal()
    {
        for (const Reponse &reponse : {http("200 OK", "bonjour"), brute("200 OK", QByteArray(1 << 20, 'a'))}) {
            clair_.servir(chemin, reponse);
            auto telechargement = std::make_unique<Telechargement>(Limites{.taille = 1000});
            const auto detruire = [&] { telechargement.reset(); };
            connect(telechargement.get(), &Telechargement::lue, this, detruire);
            connect(telechargement.get(), &Telechargement::echouee, this, detruire);
            telechargement->page(clair_.adresse(chemin));
            QTRY_VERIFY(!telechargement);
            QTRY_COMPARE(clair_.ouvertes(), 0);
        }
    }

private:
    ServeurLocal clair_;
    ServeurLocal inconnu_{ServeurLocal::Certificat::inconnu};
};

QTEST_GUILESS_MAIN(TestTelechargement)
#include "tst_telechargement.moc"
