#include "tests/BancEcran.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"
#include "tests/serveur/ServeurLocal.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>

#include <sodium.h>

using namespace Quillet;

namespace {

const QString cheminDuFlux = "/flux.xml";
const QString cheminDuPaquet = "/quillet_1.2.deb";
const QString nouvelle = "Quillet 1.2 est disponible";
const QString telecharger = "Télécharger et installer";
const QString manque = "Mise à jour impossible";

const QString inconnue = "Impossible de savoir s’il y a une mise à jour : la liste reçue%1.";

struct Annonce
{
    QString version = "1.2";
    qint64 ecart = 0; // of the length, from the real one
    QString etabli = "2026-03-01T12:00:00Z";
    QString expire = "2026-08-28T12:00:00Z";
};

template <typename Octets>
QByteArray base64(const Octets &octets)
{
    return QByteArray(reinterpret_cast<const char *>(octets.data()), qsizetype(octets.size())).toBase64();
}

} // namespace

// Updates from the menu to the platform's installer, through the real sheet and a server that is honest or not.
class TestMisesAJour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QuilletApp::preparer(Theme::Mode::clair);
        ServeurLocal::faireConfiance();
        QVERIFY(crypto_sign_keypair(cle_.data(), secret_.data()) == 0);
        paquet_ = QByteArray("!<arch>\n").repeated(40'000);
    }

    void init()
    {
        banc_.reset();
        serveur_ = std::make_unique<ServeurLocal>(ServeurLocal::Certificat::sur);
        serveur_->servir(cheminDuPaquet, http("200 OK", paquet_));
        annoncer({});
        cache_ = std::make_unique<QTemporaryDir>();
        installes_.clear();
        banc_ = std::make_unique<BancEcran>();
        banc_->misesAJour = {serveur_->adresse(cheminDuFlux),
                             base64(cle_),
                             "1.1",
                             "debian13",
                             QDir(cache_->path()),
                             [this](const QString &chemin) {
                                 installes_.append(chemin);
                                 return installes_.size() < 3;
                             }};
    }

    void cleanup() { banc_.reset(); }

    void menu()
    {
        const auto offerte = [this] {
            banc_->demarrer();
            return commande()->isEnabled();
        };
        QVERIFY(offerte());
        qputenv("XCTestConfigurationFilePath", "");
        QVERIFY(!offerte());
        qunsetenv("XCTestConfigurationFilePath");
        banc_->misesAJour.clePublique.chop(4);
        QVERIFY(!offerte());
        init();
        banc_->misesAJour.flux.clear();
        QVERIFY(!offerte());
    }

    // Of itself only the tariffs' two pages; when the user asks, two requests in Quillet's own name, and no cookie,
    // though one is offered on the way.
    void rienDEnvoye()
    {
        serveur_->servir("/ailleurs",
                         http("302 Found", {}, "Set-Cookie: qui=vous\r\nLocation: " + cheminDuFlux.toUtf8() + "\r\n"));
        banc_->misesAJour.flux = serveur_->adresse("/ailleurs");
        banc_->pages = {serveur_->adresse("/poste"), serveur_->adresse("/frais")};
        banc_->demarrer();
        QTRY_COMPARE(serveur_->requetes().size(), 2);
        chercher(nouvelle); // which it could not, were it under way
        QCOMPARE(serveur_->requetes().size(), 4);
        QCOMPARE(entete(serveur_->requetes()[3], "User-Agent"), QByteArray("Quillet"));
        QVERIFY(!serveur_->requetes()[3].toLower().contains("cookie"));
    }

    // Where a link leads stays as it is; the package's own folder is closed to anybody else.
    void dossierDuPaquet()
    {
        const QTemporaryDir ailleurs;
        QFile temoin(ailleurs.filePath("témoin"));
        QVERIFY(temoin.open(QIODevice::WriteOnly));
        const QString dossier = cache_->filePath("mises-a-jour");
        QVERIFY(QFile::link(ailleurs.path(), dossier));
        QVERIFY(Ecran::cliquer(chercher(nouvelle), telecharger));
        QTRY_COMPARE(installes_.size(), 1);
        QVERIFY(temoin.exists());
        const auto autres = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
                            | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!QFileInfo(dossier).isSymLink() && !(QFile::permissions(dossier) & autres));
    }

    // Twice, then once with no program to take it: each package takes the place of the one before.
    void bonPaquet()
    {
        for (int fois = 1; fois <= 3; ++fois) {
            QDialog *feuille = chercher(nouvelle);
            QVERIFY(Ecran::montre(feuille, "Vous avez la version 1.1. Téléchargement : 320,0\u00A0ko."));
            QCOMPARE(feuille->findChild<QPlainTextEdit *>()->toPlainText(), "Plus vite");
            QCOMPARE(feuille->focusWidget(), Ecran::controle(feuille, telecharger));
            QVERIFY(Ecran::cliquer(feuille, telecharger));
            QTRY_COMPARE(installes_.size(), fois);
            QVERIFY(Ecran::montre(feuille, fois < 3 ? QStringLiteral("Quillet 1.2 est prêt à installer") : manque));
            QCOMPARE(surLeDisque(), QStringList{cache_->filePath("mises-a-jour/quillet.deb")});
            QCOMPARE(installes_.last(), surLeDisque()[0]);
            QFile fichier(installes_.last());
            QVERIFY(fichier.open(QIODevice::ReadOnly) && fichier.readAll() == paquet_);
            QVERIFY(Ecran::cliquer(feuille, "Fermer"));
            QTRY_VERIFY(!Dialogues::devant());
        }
    }

    // Of the search or of the download: nothing is left, and one may try again.
    void refus()
    {
        const auto refuse = [this](const QString &echec, const QString &titre, const std::function<void()> &preparer) {
            const QByteArray nom = echec.toUtf8();
            const Rangee rangee(nom.constData());
            init();
            preparer();
            QDialog *feuille = chercher(titre);
            QVERIFY(titre == manque || Ecran::cliquer(feuille, telecharger));
            QTRY_VERIFY(Ecran::montre(feuille, echec));
            QVERIFY(!Ecran::controle(feuille, telecharger));
            QVERIFY(surLeDisque().isEmpty() && installes_.isEmpty());
            QVERIFY(commande()->isEnabled());
        };
        const auto livrer = [this](const QByteArray &octets) { serveur_->servir(cheminDuPaquet, {octets}); };
        refuse("Recherche impossible : l’adresse des mises à jour n’est pas sécurisée.", manque,
               [this] { banc_->misesAJour.flux.setScheme("http"); });
        refuse("Recherche impossible : page trop volumineuse.", manque,
               [this] { serveur_->servir(cheminDuFlux, http("200 OK", QByteArray(300 << 10, ' '))); });
        refuse(inconnue.arg(" est coupée ou n’est pas signée"), manque,
               [this] { donner(signer("<rss/>").chopped(1)); });
        refuse("La liste des mises à jour est illisible : le document est coupé ou mal formé.", manque,
               [this] { donner(signer("<rss>")); });
        refuse("Impossible de savoir s’il y a une mise à jour : la signature de la liste reçue n’est pas celle de "
               "Quillet.",
               manque, [this] { donner(flux({}).replace(">1.2<", ">9.0<")); });
        refuse(inconnue.arg(" n’est plus valable depuis le 1er mars 2026"), manque,
               [this] { annoncer({.expire = "2026-03-01T12:00:00Z"}); });
        refuse(inconnue.arg(" est datée du 20 août 2026, un jour à venir"), manque,
               [this] { annoncer({.etabli = "2026-08-20T12:00:00Z"}); });
        refuse(inconnue.arg(", du 27 février 2026, est plus ancienne que la dernière, du 1er mars 2026"), manque,
               [this] {
                   banc_->demarrer();
                   QVERIFY(Ecran::cliquer(chercher(nouvelle), "Plus tard"));
                   banc_->demarrer();
                   annoncer({.etabli = "2026-02-27T12:00:00Z"});
               });
        refuse("Mise à jour refusée : le fichier n’est pas celui qui est annoncé.", nouvelle,
               [&] { livrer(http("200 OK", paquet_.chopped(1) + '!').octets); });
        for (const int ecart : {+1, -1})
            refuse("Mise à jour refusée : le fichier n’a pas la longueur annoncée.", nouvelle,
                   [&] { annoncer({.ecart = ecart}); });
        refuse("Téléchargement impossible : connexion interrompue.", nouvelle,
               [&] { livrer(http("200 OK", paquet_).octets.chopped(1)); });
    }

    // Whether a feed is old cannot be told then.
    void preferencesIllisibles()
    {
        banc_->demarrer(Preferences(cache_->path()));
        QVERIFY(Ecran::montre(chercher(manque), cache_->path() + " : un dossier occupe la place du fichier"));
    }

    void disquePlein()
    {
        QDialog *feuille = chercher(nouvelle);
        const DisquePlein plein(100'000);
        QVERIFY(Ecran::cliquer(feuille, telecharger));
        QTRY_VERIFY(Ecran::montre(feuille, cache_->filePath("mises-a-jour")
                                               + QStringLiteral(" : le fichier dépasse la taille permise")));
        QVERIFY(surLeDisque().isEmpty());
    }

    void rechercheAbandonnee()
    {
        serveur_->servir(cheminDuFlux, {{}, false});
        QDialog *feuille = chercher("Recherche des mises à jour…");
        QVERIFY(!commande()->isEnabled());
        QTRY_COMPARE(serveur_->requetes().size(), 1);
        QTest::keyClick(feuille, Qt::Key_Escape);
        QVERIFY(commande()->isEnabled());
        QTRY_COMPARE(serveur_->ouvertes(), 0);
        annoncer({.version = "1.1"});
        QVERIFY(Ecran::montre(chercher("À jour"), "Quillet 1.1 est la version la plus récente."));
    }

    void telechargementAnnule()
    {
        QDialog *feuille = telechargerSansFin();
        QVERIFY(Ecran::montre(feuille, "160,0\u00A0ko sur 320,0\u00A0ko"));
        QVERIFY(!commande()->isEnabled());
        QVERIFY(Ecran::cliquer(feuille, "Annuler"));
        QVERIFY(Ecran::montre(feuille, nouvelle) && Ecran::controle(feuille, telecharger));
        QTRY_COMPARE(serveur_->ouvertes(), 0);
        QVERIFY(surLeDisque().isEmpty());
    }

    void quitterEnRoute()
    {
        telechargerSansFin();
        banc_->app.reset();
        QTRY_COMPARE(serveur_->ouvertes(), 0);
        QVERIFY(surLeDisque().isEmpty() && installes_.isEmpty());
    }

private:
    [[nodiscard]] QAction *commande() const
    {
        return banc_->app->fenetre().menuBar()->actions().value(0)->menu()->actions().value(1);
    }
    // The sheet, once it says this.
    QDialog *chercher(const QString &titre)
    {
        if (!banc_->app)
            banc_->demarrer();
        commande()->trigger();
        QDialog *feuille = Dialogues::devant();
        if (!feuille || !QTest::qWaitFor([&] { return Ecran::montre(feuille, titre); }))
            qFatal("La feuille ne dit pas : %s", qPrintable(titre));
        return feuille;
    }

    // The same, on its way to a package whose end never comes.
    QDialog *telechargerSansFin()
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

    // As the publisher does.
    [[nodiscard]] QByteArray signer(const QByteArray &octets) const
    {
        SignatureEd25519::Signature signature{};
        crypto_sign_detached(signature.data(), nullptr, reinterpret_cast<const unsigned char *>(octets.constData()),
                             static_cast<size_t>(octets.size()), secret_.data());
        return octets + "<!-- signature: " + base64(signature) + " -->\n";
    }

    [[nodiscard]] QByteArray flux(const Annonce &annonce) const
    {
        const QByteArray empreinte = QCryptographicHash::hash(paquet_, QCryptographicHash::Sha256).toHex();
        return signer(QStringLiteral("<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
                                     "xmlns:quillet='https://quillet.example/flux' quillet:etabli='%1' "
                                     "quillet:expire='%2'><channel><item><sparkle:version>%3</sparkle:version>"
                                     "<description>Plus &lt;b&gt;vite&lt;/b&gt;</description>"
                                     "<enclosure sparkle:os='debian13' url='%4' length='%5' quillet:sha256='%6'/>"
                                     "<enclosure url='https://a.invalid/'/></item></channel></rss>")
                          .arg(annonce.etabli, annonce.expire, annonce.version,
                               serveur_->adresse(cheminDuPaquet).toString(),
                               QString::number(paquet_.size() + annonce.ecart), QString::fromLatin1(empreinte))
                          .toUtf8());
    }

    void donner(const QByteArray &octets) { serveur_->servir(cheminDuFlux, http("200 OK", octets)); }
    void annoncer(const Annonce &annonce) { donner(flux(annonce)); }

    [[nodiscard]] QStringList surLeDisque() const
    {
        QStringList trouves;
        for (QDirIterator fichiers(cache_->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             fichiers.hasNext();)
            trouves.append(fichiers.next());
        return trouves;
    }

    SignatureEd25519::Cle cle_{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret_{};
    QByteArray paquet_;
    QStringList installes_;
    std::unique_ptr<ServeurLocal> serveur_;
    std::unique_ptr<QTemporaryDir> cache_;
    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestMisesAJour)
#include "tst_mises_a_jour.moc"
