#include "tests/serveur/ServeurLocal.h"
#include "watch/Telechargement.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <zlib.h>

using namespace std::chrono_literals;

// Downloads from a real server on this machine, honest, broken or hostile.
class TestTelechargement : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void reponses_data();
    void reponses();
    void redirections_data();
    void redirections();
    void adresses_data();
    void adresses();
    void limites_data();
    void limites();
    void limitesParDefaut();
    void entetes();
    void arreteLeServeur();
    void enchaine();
    void detruitEnRoute_data();
    void detruitEnRoute();
    void detruitParUnSignal_data();
    void detruitParUnSignal();

private:
    ServeurLocal clair_;
    ServeurLocal sur_{ServeurLocal::Certificat::sur};
    ServeurLocal inconnu_{ServeurLocal::Certificat::inconnu};
    ServeurLocal perime_{ServeurLocal::Certificat::perime};
};

Q_DECLARE_METATYPE(Reponse)
Q_DECLARE_METATYPE(Limites)

namespace {

const QString chemin = QStringLiteral("/page");

QString inaccessible(const char *detail)
{
    return QStringLiteral("Page inaccessible : %1.").arg(QString::fromUtf8(detail));
}

const QString illisible = QStringLiteral("La page a changé de forme : texte illisible. Vérifiez à la main.");
const QString bonjour = QStringLiteral("bonjour");

// What the user gets, the text or the message, after `telechargement` said exactly one thing, and not at once.
QString issue(Telechargement &telechargement, const QUrl &adresse)
{
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
    return telechargement.enCours() ? QStringLiteral("(encore en cours)") : dites.join(QStringLiteral(" puis "));
}

QString issue(const QUrl &adresse, const Limites &limites = {})
{
    Telechargement telechargement(limites);
    return issue(telechargement, adresse);
}

QByteArray gzip(const QByteArray &clair)
{
    z_stream flux{};
    deflateInit2(&flux, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, MAX_MEM_LEVEL, Z_DEFAULT_STRATEGY);
    QByteArray copie = clair;
    QByteArray plie(static_cast<qsizetype>(deflateBound(&flux, static_cast<uLong>(clair.size()))), Qt::Uninitialized);
    flux.next_in = reinterpret_cast<Bytef *>(copie.data());
    flux.avail_in = static_cast<uInt>(copie.size());
    flux.next_out = reinterpret_cast<Bytef *>(plie.data());
    flux.avail_out = static_cast<uInt>(plie.size());
    deflate(&flux, Z_FINISH);
    plie.truncate(static_cast<qsizetype>(flux.total_out));
    deflateEnd(&flux);
    return plie;
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

QUrl portFerme()
{
    ServeurLocal ferme;
    return ferme.adresse(chemin);
}

} // namespace

void TestTelechargement::initTestCase()
{
    ServeurLocal::faireConfiance();
}

void TestTelechargement::reponses_data()
{
    QTest::addColumn<Reponse>("reponse");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *nom, const Reponse &reponse, const QString &attendu) {
        QTest::newRow(nom) << reponse << attendu;
    };
    cas("honnête", http("200 OK", "<p>é € 😀</p>"), QStringLiteral("<p>é € 😀</p>"));
    cas("vide", http("200 OK"), {});
    cas("sans longueur", brute("200 OK", "bonjour"), bonjour);
    cas("par morceaux", brute("200 OK\r\nTransfer-Encoding: chunked", "3\r\nbon\r\n4\r\njour\r\n0\r\n\r\n"), bonjour);
    cas("autre codage annoncé", http("200 OK", "été", "Content-Type: text/html; charset=iso-8859-1\r\n"),
        QStringLiteral("été"));

    cas("204", brute("204 No Content"), inaccessible("réponse 204 de localhost"));
    cas("206", http("206 Partial Content", "bon"), inaccessible("réponse 206 de localhost"));
    cas("401", http("401 Unauthorized", "", "WWW-Authenticate: Basic realm=\"a\"\r\n"),
        inaccessible("réponse 401 de localhost"));
    cas("404", http("404 Not Found", "bonjour"), inaccessible("réponse 404 de localhost"));
    cas("404 coupé", brute("404 Not Found\r\nContent-Length: 100", "bon"), inaccessible("réponse 404 de localhost"));
    cas("500", http("500 Internal Server Error"), inaccessible("réponse 500 de localhost"));

    cas("coupé", brute("200 OK\r\nContent-Length: 8", "bonjour"), inaccessible("connexion interrompue"));
    cas("plus long qu’annoncé", brute("200 OK\r\nContent-Length: 3", "bonjour"), QStringLiteral("bon"));
    cas("en-tête coupé", {"HTTP/1.1 200 OK\r\nContent-Le"}, inaccessible("connexion interrompue"));
    cas("raccroché", {}, inaccessible("connexion interrompue"));
    cas("pas du HTTP", {"SSH-2.0-OpenSSH_9.2\r\n\r\n"}, inaccessible("connexion interrompue"));

    cas("octet isolé", http("200 OK", "bon\xE9jour"), illisible);
    cas("caractère coupé à la fin", http("200 OK", "bonjour \xE2\x82"), illisible);
    cas("forme trop longue", http("200 OK", "\xC0\xAF"), illisible);
    cas("demi-paire", http("200 OK", "\xED\xA0\x80"), illisible);

    cas("gzip", compressee(gzip("bonjour")), bonjour);
    cas("gzip, autre nom", compressee(gzip("bonjour"), " X-GZip"), bonjour);
    cas("gzip sans longueur", brute("200 OK\r\nContent-Encoding: gzip", gzip("bonjour")), bonjour);
    cas("pas de codage", compressee("bonjour", "identity"), bonjour);
    cas("gzip coupé", compressee(gzip("bonjour").chopped(1)), inaccessible("contenu compressé illisible"));
    cas("gzip absent", compressee({}), inaccessible("contenu compressé illisible"));
    cas("gzip suivi", compressee(gzip("bonjour") + "a"), inaccessible("contenu compressé illisible"));
    cas("gzip faux", compressee("bonjour"), inaccessible("contenu compressé illisible"));
    cas("codage inconnu", compressee("bonjour", "br"), inaccessible("contenu compressé illisible"));
    cas("gzip illisible", compressee(gzip("\xFF")), illisible);
}

void TestTelechargement::reponses()
{
    QFETCH(Reponse, reponse);
    QFETCH(QString, attendu);
    clair_.servir(chemin, reponse);
    QCOMPARE(issue(clair_.adresse(chemin)), attendu);
}

void TestTelechargement::redirections_data()
{
    QTest::addColumn<QList<Reponse>>("reponses"); // of /0, /1…
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *nom, const QList<Reponse> &reponses, const QString &attendu) {
        QTest::newRow(nom) << reponses << attendu;
    };
    const auto vers = [](const char *cible) { return redirection(QUrl(QString::fromUtf8(cible))); };
    const Reponse page = http("200 OK", "bonjour");
    const QByteArray localisation = "Location: /1\r\n";
    cas("301", {http("301 Moved Permanently", "parti", localisation), page}, bonjour);
    cas("303", {http("303 See Other", {}, localisation), page}, bonjour);
    cas("307", {http("307 Temporary Redirect", {}, localisation), page}, bonjour);
    cas("308", {http("308 Permanent Redirect", {}, localisation), page}, bonjour);
    cas("en chaîne", {vers("/1"), vers("2"), vers("/3?a=b"), vers("/4"), page},
        inaccessible("réponse 404 de localhost"));
    cas("vers rien", {vers("/1")}, inaccessible("réponse 404 de localhost"));
    cas("en rond", {vers("/1"), vers("/0")}, inaccessible("trop de redirections"));
    cas("nulle part", {brute("301 Moved Permanently")}, inaccessible("réponse 301 de localhost"));
    cas("au choix", {http("300 Multiple Choices", {}, localisation), page}, inaccessible("réponse 300 de localhost"));
    cas("inchangée", {http("304 Not Modified")}, inaccessible("réponse 304 de localhost"));
    cas("vers un fichier", {vers("file:///etc/passwd")}, inaccessible("réponse 302 de localhost"));
    cas("vers un port fermé", {redirection(portFerme())}, inaccessible("connexion refusée"));
    cas("puis silence", {vers("/1"), puisSilence({})}, inaccessible("délai d’attente dépassé"));
    cas("sans fin", {puisSilence(brute("302 Found\r\nLocation: /1\r\nContent-Length: 9", "parti")), page},
        inaccessible("délai d’attente dépassé"));
    cas("du HTTP au HTTPS", {redirection(sur_.adresse(chemin))}, QStringLiteral("bonjour chiffré"));
}

void TestTelechargement::redirections()
{
    QFETCH(QList<Reponse>, reponses);
    QFETCH(QString, attendu);
    sur_.servir(chemin, http("200 OK", "bonjour chiffré"));
    ServeurLocal serveur;
    for (qsizetype rang = 0; rang < reponses.size(); ++rang)
        serveur.servir(QStringLiteral("/%1").arg(rang), reponses[rang]);
    QCOMPARE(issue(serveur.adresse(QStringLiteral("/0")), {.silence = 300ms}), attendu);
}

void TestTelechargement::adresses_data()
{
    QTest::addColumn<QUrl>("adresse");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *nom, const QUrl &adresse, const QString &attendu) {
        QTest::newRow(nom) << adresse << attendu;
    };
    const auto url = [](const QString &texte) { return QUrl(texte); };
    cas("certificat sûr", sur_.adresse(chemin), bonjour);
    cas("certificat inconnu", inconnu_.adresse(chemin), inaccessible("connexion sécurisée impossible"));
    cas("certificat périmé", perime_.adresse(chemin), inaccessible("connexion sécurisée impossible"));
    cas("autre nom", sur_.adresse(chemin, QStringLiteral("127.0.0.1")), inaccessible("connexion sécurisée impossible"));
    cas("du HTTPS au HTTPS", sur_.adresse(QStringLiteral("/ailleurs")), bonjour);
    cas("du HTTPS au HTTP", sur_.adresse(QStringLiteral("/dehors")),
        inaccessible("redirection vers une adresse non sécurisée"));
    cas("coupé en HTTPS", sur_.adresse(QStringLiteral("/coupe")), inaccessible("connexion interrompue"));
    // Not on a plain line: there the platform sometimes takes such a body for whole.
    cas("morceau coupé en HTTPS", sur_.adresse(QStringLiteral("/morceau")), inaccessible("connexion interrompue"));
    cas("dernier morceau absent en HTTPS", sur_.adresse(QStringLiteral("/dernier")),
        inaccessible("connexion interrompue"));
    cas("port fermé", portFerme(), inaccessible("connexion refusée"));
    // Impossible names and addresses: refused on this machine, whatever its network.
    cas("serveur introuvable", url(QStringLiteral("http://") + QString(64, u'a')), inaccessible("serveur introuvable"));
    cas("sans route", url(QStringLiteral("http://255.255.255.255")), inaccessible("réseau inaccessible"));
    cas("autre protocole", url(QStringLiteral("ftp://localhost/")), inaccessible("adresse non prise en charge"));
    cas("aucune", {}, inaccessible("adresse non prise en charge"));
    cas("un fichier", QUrl::fromLocalFile(QFINDTESTDATA("tst_telechargement.cpp")), inaccessible("réponse 0 de "));
    cas("des données", url(QStringLiteral("data:,bonjour")), inaccessible("réponse 0 de "));
}

void TestTelechargement::adresses()
{
    QFETCH(QUrl, adresse);
    QFETCH(QString, attendu);
    for (ServeurLocal *serveur : {&sur_, &inconnu_, &perime_})
        serveur->servir(chemin, http("200 OK", "bonjour"));
    clair_.servir(chemin, http("200 OK", "en clair"));
    sur_.servir(QStringLiteral("/ailleurs"), redirection(sur_.adresse(chemin)));
    sur_.servir(QStringLiteral("/dehors"), redirection(clair_.adresse(chemin)));
    sur_.servir(QStringLiteral("/coupe"), brute("200 OK\r\nContent-Length: 8", "bonjour"));
    const QByteArray morceaux = "200 OK\r\nTransfer-Encoding: chunked";
    sur_.servir(QStringLiteral("/morceau"), brute(morceaux, "8\r\nbonjour"));
    sur_.servir(QStringLiteral("/dernier"), brute(morceaux, "7\r\nbonjour\r\n"));
    QCOMPARE(issue(adresse), attendu);
}

void TestTelechargement::limites_data()
{
    QTest::addColumn<Reponse>("reponse");
    QTest::addColumn<Limites>("limites");
    QTest::addColumn<QString>("attendu");
    const auto cas = [](const char *nom, const Reponse &reponse, const Limites &limites, const QString &attendu) {
        QTest::newRow(nom) << reponse << limites << attendu;
    };
    const auto goutteAGoutte = [](Reponse reponse) {
        reponse.parOctet = 10ms;
        return reponse;
    };
    const QString silence = inaccessible("délai d’attente dépassé");
    cas("muet", puisSilence({}), {.silence = 200ms}, silence);
    cas("tu en chemin", puisSilence(brute("200 OK\r\nContent-Length: 8", "bonjour")), {.silence = 200ms}, silence);
    cas("404 tu en chemin", puisSilence(brute("404 Not Found\r\nContent-Length: 8", "bonjour")), {.silence = 200ms},
        inaccessible("réponse 404 de localhost"));
    cas("lent mais vif", goutteAGoutte(http("200 OK", QByteArray(60, 'a'))), {.silence = 500ms}, QString(60, u'a'));
    cas("trop lent", goutteAGoutte(http("200 OK", QByteArray(500, 'a'))), {.silence = 500ms, .duree = 700ms},
        inaccessible("téléchargement trop long"));

    const QString gros = inaccessible("page trop volumineuse");
    const Limites petite{.taille = 10'000};
    const QByteArray juste(petite.taille, 'a');
    cas("juste", http("200 OK", juste), petite, QString::fromLatin1(juste));
    cas("annoncé trop gros", puisSilence(brute("200 OK\r\nContent-Length: 10001")), petite, gros);
    cas("404 annoncé trop gros", http("404 Not Found", juste + 'a'), petite, inaccessible("réponse 404 de localhost"));
    cas("trop gros", brute("200 OK", juste + 'a'), petite, gros);
    cas("bien trop gros, sans fin", puisSilence(brute("200 OK", QByteArray(1'000'000, 'a'))), petite, gros);
    cas("juste, compressé", compressee(gzip(juste)), petite, QString::fromLatin1(juste));
    cas("trop gros, compressé", compressee(gzip(juste + 'a')), petite, gros);
    cas("bombe", compressee(gzip(QByteArray(8'000'000, 'a'))), petite, gros);
    const Limites ordinaire;
    cas("16 Mio", http("200 OK", QByteArray(16 << 20, 'a')), ordinaire, QString(16 << 20, u'a'));
    cas("16 Mio et un octet", brute("200 OK", QByteArray((16 << 20) + 1, 'a')), ordinaire, gros);
}

void TestTelechargement::limites()
{
    QFETCH(Reponse, reponse);
    QFETCH(Limites, limites);
    QFETCH(QString, attendu);
    clair_.servir(chemin, reponse);
    QCOMPARE(issue(clair_.adresse(chemin), limites), attendu);
}

void TestTelechargement::limitesParDefaut()
{
    QCOMPARE(Limites().silence, 30s);
    QCOMPARE(Limites().duree, 60s);
}

void TestTelechargement::entetes()
{
    ServeurLocal serveur;
    serveur.servir(chemin, redirection(serveur.adresse(QStringLiteral("/fin"))));
    serveur.servir(QStringLiteral("/fin"), http("200 OK", "bonjour"));
    QCOMPARE(issue(serveur.adresse(chemin)), bonjour);
    QCOMPARE(serveur.requetes().size(), 2);
    QVERIFY(serveur.requetes()[0].startsWith("GET /page HTTP/1.1\r\n"));
    QVERIFY(serveur.requetes()[1].startsWith("GET /fin HTTP/1.1\r\n"));
    for (const QByteArray &requete : serveur.requetes()) {
        QVERIFY(requete.contains("\r\nUser-Agent: Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 "
                                 "(KHTML, like Gecko) Version/18.0 Safari/605.1.15\r\n"));
        QVERIFY(requete.contains("\r\nAccept-Language: fr-FR,fr;q=0.9\r\n"));
        QVERIFY(requete.contains("\r\nAccept-Encoding: gzip\r\n"));
    }
}

// The limit holds on the line as well, not only on what is kept.
void TestTelechargement::arreteLeServeur()
{
    ServeurLocal serveur;
    serveur.servir(chemin, brute("200 OK", QByteArray(64 << 20, 'a')));
    QCOMPARE(issue(serveur.adresse(chemin), {.taille = 100'000}), inaccessible("page trop volumineuse"));
    QTRY_COMPARE(serveur.ouvertes(), 0);
    QVERIFY2(serveur.envoyes() < 24 << 20, qPrintable(QString::number(serveur.envoyes())));
}

// One object, page after page: nothing is left of the one before.
void TestTelechargement::enchaine()
{
    clair_.servir(chemin, http("200 OK", "bonjour"));
    clair_.servir(QStringLiteral("/gros"), http("200 OK", QByteArray(200, 'a')));
    Telechargement telechargement(Limites{.taille = 100});
    for (int tour = 0; tour < 2; ++tour) {
        QCOMPARE(issue(telechargement, clair_.adresse(QStringLiteral("/gros"))), inaccessible("page trop volumineuse"));
        QCOMPARE(issue(telechargement, clair_.adresse(QStringLiteral("/rien"))),
                 inaccessible("réponse 404 de localhost"));
        QCOMPARE(issue(telechargement, clair_.adresse(chemin)), bonjour);
    }

    // The next page is asked for by whoever hears the first.
    QStringList lues;
    connect(&telechargement, &Telechargement::lue, this, [&](const QString &texte) {
        lues.append(texte);
        if (lues.size() < 3)
            telechargement.page(clair_.adresse(chemin));
    });
    telechargement.page(clair_.adresse(chemin));
    QTRY_COMPARE(lues, (QStringList{bonjour, bonjour, bonjour}));
}

void TestTelechargement::detruitEnRoute_data()
{
    QTest::addColumn<bool>("chiffre");
    QTest::addColumn<qint64>("octetsEnvoyes"); // by the server, when the download is destroyed; -1: at once
    QTest::newRow("à peine demandé") << false << qint64{-1};
    QTest::newRow("à peine demandé, chiffré") << true << qint64{-1};
    QTest::newRow("sans réponse") << false << qint64{0};
    QTest::newRow("en chemin") << false << qint64{1 << 20};
    QTest::newRow("en chemin, chiffré") << true << qint64{1 << 20};
}

void TestTelechargement::detruitEnRoute()
{
    QFETCH(bool, chiffre);
    QFETCH(qint64, octetsEnvoyes);
    ServeurLocal serveur(chiffre ? ServeurLocal::Certificat::sur : ServeurLocal::Certificat::aucun);
    serveur.servir(chemin, puisSilence(octetsEnvoyes > 0 ? brute("200 OK", QByteArray(8 << 20, 'a')) : Reponse{}));
    auto telechargement = std::make_unique<Telechargement>();
    QSignalSpy lue(telechargement.get(), &Telechargement::lue);
    int echecs = 0;
    connect(telechargement.get(), &Telechargement::echouee, this, [&] { ++echecs; });
    telechargement->page(serveur.adresse(chemin));
    if (octetsEnvoyes >= 0)
        QTRY_VERIFY(serveur.requetes().size() == 1 && serveur.envoyes() >= octetsEnvoyes);
    QVERIFY(telechargement->enCours());
    QElapsedTimer duree;
    duree.start();
    telechargement.reset();
    QVERIFY2(duree.elapsed() < 1000, qPrintable(QString::number(duree.elapsed())));
    QTRY_COMPARE(serveur.ouvertes(), 0);
    QCOMPARE(lue.count() + echecs, 0);
}

void TestTelechargement::detruitParUnSignal_data()
{
    QTest::addColumn<Reponse>("reponse");
    QTest::newRow("lue") << http("200 OK", "bonjour");
    QTest::newRow("échouée") << http("404 Not Found");
    QTest::newRow("interrompue") << brute("200 OK", QByteArray(1 << 20, 'a'));
    QTest::newRow("coupée") << brute("200 OK\r\nContent-Length: 9", "bonjour");
}

void TestTelechargement::detruitParUnSignal()
{
    QFETCH(Reponse, reponse);
    clair_.servir(chemin, reponse);
    auto telechargement = std::make_unique<Telechargement>(Limites{.taille = 1000});
    const auto detruire = [&] { telechargement.reset(); };
    connect(telechargement.get(), &Telechargement::lue, this, detruire);
    connect(telechargement.get(), &Telechargement::echouee, this, detruire);
    telechargement->page(clair_.adresse(chemin));
    QTRY_VERIFY(!telechargement);
    QTRY_COMPARE(clair_.ouvertes(), 0);
}

QTEST_GUILESS_MAIN(TestTelechargement)
#include "tst_telechargement.moc"
