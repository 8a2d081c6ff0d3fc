#include "tests/BancEcran.h"
#include "tests/DisquePlein.h"
#include "tests/serveur/ServeurLocal.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QDialog>
#include <QDirIterator>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTest>

#include <sodium.h>

using namespace Quillet;

// Updates from the menu to the platform's installer, through the real sheet and a server that is honest or not.
class TestMisesAJour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { banc_.reset(); }

    void menu();
    void rienDEnvoye();
    void dossierDuPaquet();
    void bonPaquet();
    void refus_data();
    void refus();
    void disquePlein();
    void rechercheAbandonnee();
    void telechargementAnnule();
    void quitterEnRoute();

private:
    [[nodiscard]] QAction *commande() const
    {
        return banc_->app->fenetre().menuBar()->actions().value(0)->menu()->actions().value(1);
    }
    // The sheet, once it says this.
    QDialog *chercher(const QString &titre);
    // The same, on its way to a package whose end never comes.
    QDialog *telechargerSansFin();
    void annoncer(const QString &version = QStringLiteral("1.2"), qsizetype longueur = 0);
    [[nodiscard]] QStringList surLeDisque() const;

    SignatureEd25519::Cle cle_{};
    QByteArray paquet_;
    QByteArray signature_; // in base64
    QStringList installes_;
    std::unique_ptr<ServeurLocal> serveur_;
    std::unique_ptr<QTemporaryDir> cache_;
    std::unique_ptr<BancEcran> banc_;
};

namespace {

const QString cheminDuFlux = QStringLiteral("/flux.xml");
const QString cheminDuPaquet = QStringLiteral("/quillet_1.2.deb");
const QString nouvelle = QStringLiteral("Quillet 1.2 est disponible");
const QString telecharger = QStringLiteral("Télécharger et installer");
const QString manque = QStringLiteral("Mise à jour impossible");

QByteArray base64(const unsigned char *octets, qsizetype nombre)
{
    return QByteArray(reinterpret_cast<const char *>(octets), nombre).toBase64();
}

} // namespace

void TestMisesAJour::initTestCase()
{
    QuilletApp::preparer(Theme::Mode::clair);
    ServeurLocal::faireConfiance();
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret{};
    QVERIFY(crypto_sign_keypair(cle_.data(), secret.data()) == 0);
    paquet_ = QByteArray("!<arch>\n").repeated(40'000);
    SignatureEd25519::Signature signature{};
    crypto_sign_detached(signature.data(), nullptr, reinterpret_cast<const unsigned char *>(paquet_.constData()),
                         static_cast<size_t>(paquet_.size()), secret.data());
    signature_ = base64(signature.data(), signature.size());
}

void TestMisesAJour::init()
{
    serveur_ = std::make_unique<ServeurLocal>(ServeurLocal::Certificat::sur);
    serveur_->servir(cheminDuPaquet, http("200 OK", paquet_));
    annoncer();
    cache_ = std::make_unique<QTemporaryDir>();
    installes_.clear();
    banc_ = std::make_unique<BancEcran>();
    banc_->misesAJour = {serveur_->adresse(cheminDuFlux),
                         base64(cle_.data(), qsizetype(cle_.size())),
                         QStringLiteral("1.1"),
                         QStringLiteral("debian13"),
                         QDir(cache_->path()),
                         [this](const QString &chemin) {
                             installes_.append(chemin);
                             return installes_.size() < 3;
                         }};
}

void TestMisesAJour::annoncer(const QString &version, qsizetype longueur)
{
    const QString flux =
        QStringLiteral("<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><item>"
                       "<sparkle:version>%1</sparkle:version><description>Plus &lt;b&gt;vite&lt;/b&gt;</description>"
                       "<enclosure sparkle:os='debian13' url='%2' length='%3' sparkle:edSignature='%4'/>"
                       "<enclosure url='https://a.invalid/'/></item></channel></rss>")
            .arg(version, serveur_->adresse(cheminDuPaquet).toString(),
                 QString::number(longueur ? longueur : paquet_.size()), QString::fromLatin1(signature_));
    serveur_->servir(cheminDuFlux, http("200 OK", flux.toUtf8()));
}

QStringList TestMisesAJour::surLeDisque() const
{
    QStringList trouves;
    for (QDirIterator fichiers(cache_->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         fichiers.hasNext();)
        trouves.append(fichiers.next());
    return trouves;
}

QDialog *TestMisesAJour::chercher(const QString &titre)
{
    if (!banc_->app)
        banc_->demarrer();
    commande()->trigger();
    QDialog *feuille = Dialogues::devant();
    if (!feuille || !QTest::qWaitFor([&] { return Ecran::montre(feuille, titre); }))
        qFatal("La feuille ne dit pas : %s", qPrintable(titre));
    return feuille;
}

QDialog *TestMisesAJour::telechargerSansFin()
{
    Reponse coupee = http("200 OK", paquet_);
    coupee.octets.chop(paquet_.size() / 2);
    coupee.fermer = false;
    serveur_->servir(cheminDuPaquet, coupee);
    QDialog *feuille = chercher(nouvelle);
    const auto *progres = feuille->findChild<QProgressBar *>();
    if (!Ecran::cliquer(feuille, telecharger) || !QTest::qWaitFor([&] { return progres->value() == 500; }))
        qFatal("Le téléchargement n’avance pas");
    return feuille;
}

void TestMisesAJour::menu()
{
    const SourceMisesAJour complete = banc_->misesAJour;
    for (const QString &manque :
         {QString(), QStringLiteral("flux"), QStringLiteral("clé"), QStringLiteral("hors de XCTest")}) {
        banc_->misesAJour = complete;
        if (manque == u"flux")
            banc_->misesAJour.flux.clear();
        if (manque == u"clé")
            banc_->misesAJour.clePublique.chop(4);
        if (manque == u"hors de XCTest")
            qputenv("XCTestConfigurationFilePath", "");
        banc_->demarrer();
        qunsetenv("XCTestConfigurationFilePath");
        QVERIFY2(commande()->isEnabled() == manque.isEmpty(), qPrintable(manque));
    }
}

// Nothing before the user asks; then two requests in Quillet's own name, and no cookie, though one is offered on the
// way.
void TestMisesAJour::rienDEnvoye()
{
    serveur_->servir(QStringLiteral("/ailleurs"),
                     http("302 Found", {}, "Set-Cookie: qui=vous\r\nLocation: " + cheminDuFlux.toUtf8() + "\r\n"));
    banc_->misesAJour.flux = serveur_->adresse(QStringLiteral("/ailleurs"));
    banc_->demarrer();
    QTest::qWait(100);
    QVERIFY(serveur_->requetes().isEmpty());
    chercher(nouvelle);
    QCOMPARE(serveur_->requetes().size(), 2);
    QCOMPARE(entete(serveur_->requetes()[1], "User-Agent"), QByteArray("Quillet"));
    QVERIFY(!serveur_->requetes()[1].toLower().contains("cookie"));
}

// Where a link leads stays as it is; the package's own folder is closed to anybody else.
void TestMisesAJour::dossierDuPaquet()
{
    const QTemporaryDir ailleurs;
    QFile temoin(ailleurs.filePath(QStringLiteral("témoin")));
    QVERIFY(temoin.open(QIODevice::WriteOnly));
    const QString dossier = cache_->filePath(QStringLiteral("mises-a-jour"));
    QVERIFY(QFile::link(ailleurs.path(), dossier));
    QVERIFY(Ecran::cliquer(chercher(nouvelle), telecharger));
    QTRY_COMPARE(installes_.size(), 1);
    QVERIFY(temoin.exists());
    const auto autres =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!QFileInfo(dossier).isSymLink() && !(QFile::permissions(dossier) & autres));
}

// Twice, then once with no program to take it: each package takes the place of the one before.
void TestMisesAJour::bonPaquet()
{
    for (int fois = 1; fois <= 3; ++fois) {
        QDialog *feuille = chercher(nouvelle);
        QVERIFY(Ecran::montre(feuille, QStringLiteral("Vous avez la version 1.1. Téléchargement : 320,0\u00A0ko.")));
        QCOMPARE(feuille->findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("Plus vite"));
        QCOMPARE(feuille->focusWidget(), Ecran::controle(feuille, telecharger));
        QVERIFY(Ecran::cliquer(feuille, telecharger));
        QTRY_COMPARE(installes_.size(), fois);
        QVERIFY(Ecran::montre(feuille, fois < 3 ? QStringLiteral("Quillet 1.2 est prêt à installer") : manque));
        QCOMPARE(surLeDisque(), QStringList{cache_->filePath(QStringLiteral("mises-a-jour/quillet.deb"))});
        QCOMPARE(installes_.last(), surLeDisque()[0]);
        QFile fichier(installes_.last());
        QVERIFY(fichier.open(QIODevice::ReadOnly) && fichier.readAll() == paquet_);
        QVERIFY(Ecran::cliquer(feuille, QStringLiteral("Fermer")));
        QTRY_VERIFY(!Dialogues::devant());
    }
}

void TestMisesAJour::refus_data()
{
    QTest::addColumn<std::function<void()>>("preparer");
    QTest::addColumn<QString>("titre"); // after the search
    QTest::addColumn<QString>("echec"); // of the search or of the download
    const auto cas = [](const char *nom, const std::function<void()> &preparer, const QString &titre,
                        const char *echec) { QTest::newRow(nom) << preparer << titre << QString::fromUtf8(echec); };
    const auto livrer = [this](const QByteArray &octets) { serveur_->servir(cheminDuPaquet, {octets}); };
    const QString v12 = QStringLiteral("1.2");
    cas(
        "flux en HTTP", [this] { banc_->misesAJour.flux.setScheme(QStringLiteral("http")); }, manque,
        "Recherche impossible : l’adresse des mises à jour n’est pas sécurisée.");
    cas(
        "flux énorme", [this] { serveur_->servir(cheminDuFlux, http("200 OK", QByteArray(300 << 10, ' '))); }, manque,
        "Recherche impossible : page trop volumineuse.");
    cas(
        "flux coupé", [this] { serveur_->servir(cheminDuFlux, http("200 OK", "<rss><channel>")); }, manque,
        "La liste des mises à jour est illisible : le document est coupé ou mal formé.");
    cas(
        "altéré", [=, this] { livrer(http("200 OK", paquet_.chopped(1) + '!').octets); }, nouvelle,
        "Mise à jour refusée : sa signature n’est pas celle de Quillet.");
    const char *longueur = "Mise à jour refusée : le fichier n’a pas la longueur annoncée.";
    for (const int ecart : {+1, -1})
        cas(
            ecart > 0 ? "plus court" : "plus long", [=, this] { annoncer(v12, paquet_.size() + ecart); }, nouvelle,
            longueur);
    cas(
        "coupé", [=, this] { livrer(http("200 OK", paquet_).octets.chopped(1)); }, nouvelle,
        "Téléchargement impossible : connexion interrompue.");
}

void TestMisesAJour::refus()
{
    QFETCH(std::function<void()>, preparer);
    QFETCH(QString, titre);
    QFETCH(QString, echec);
    preparer();
    QDialog *feuille = chercher(titre);
    QVERIFY(titre == manque || Ecran::cliquer(feuille, telecharger));
    QTRY_VERIFY(Ecran::montre(feuille, echec));
    QVERIFY(!Ecran::controle(feuille, telecharger));
    QVERIFY(surLeDisque().isEmpty() && installes_.isEmpty());
    QVERIFY(commande()->isEnabled());
}

void TestMisesAJour::disquePlein()
{
    QDialog *feuille = chercher(nouvelle);
    const DisquePlein plein(100'000);
    QVERIFY(Ecran::cliquer(feuille, telecharger));
    QTRY_VERIFY(Ecran::montre(feuille, cache_->filePath(QStringLiteral("mises-a-jour"))
                                           + QStringLiteral(" : le fichier dépasse la taille permise")));
    QVERIFY(surLeDisque().isEmpty());
}

void TestMisesAJour::rechercheAbandonnee()
{
    serveur_->servir(cheminDuFlux, {{}, false});
    QDialog *feuille = chercher(QStringLiteral("Recherche des mises à jour…"));
    QVERIFY(!commande()->isEnabled());
    QTRY_COMPARE(serveur_->requetes().size(), 1);
    QTest::keyClick(feuille, Qt::Key_Escape);
    QVERIFY(commande()->isEnabled());
    QTRY_COMPARE(serveur_->ouvertes(), 0);
    annoncer(QStringLiteral("1.1"));
    QVERIFY(Ecran::montre(chercher(QStringLiteral("À jour")),
                          QStringLiteral("Quillet 1.1 est la version la plus récente.")));
}

void TestMisesAJour::telechargementAnnule()
{
    QDialog *feuille = telechargerSansFin();
    QVERIFY(Ecran::montre(feuille, QStringLiteral("160,0\u00A0ko sur 320,0\u00A0ko")));
    QVERIFY(!commande()->isEnabled());
    QVERIFY(Ecran::cliquer(feuille, QStringLiteral("Annuler")));
    QVERIFY(Ecran::montre(feuille, nouvelle) && Ecran::controle(feuille, telecharger));
    QTRY_COMPARE(serveur_->ouvertes(), 0);
    QVERIFY(surLeDisque().isEmpty());
}

void TestMisesAJour::quitterEnRoute()
{
    telechargerSansFin();
    banc_->app.reset();
    QTRY_COMPARE(serveur_->ouvertes(), 0);
    QVERIFY(surLeDisque().isEmpty() && installes_.isEmpty());
}

QTEST_MAIN(TestMisesAJour)
#include "tst_mises_a_jour.moc"
