#include "tests/Banc.h"

#include <QTest>

#include <sys/resource.h>

#include <csignal>

class TestStockage : public QObject
{
    Q_OBJECT

private slots:
    void fichierAbimeMisDeCote();
    void effacerPreserveAussi();
    void echecLaisseToutIntact_data();
    void echecLaisseToutIntact();
};

namespace {

const QString livresModifies = QStringLiteral("livres-modifies.json");

// The system refuses to let any file grow beyond a few bytes: what a full disk does, without one.
class DisquePlein
{
public:
    DisquePlein()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &avant_);
        const rlimit limite{16, avant_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~DisquePlein() { setrlimit(RLIMIT_FSIZE, &avant_); }
    Q_DISABLE_COPY_MOVE(DisquePlein)

private:
    rlimit avant_{};
};

QString erreurALaModification(Catalogue &catalogue)
{
    Livre livre = catalogue.livres()[0];
    livre.prix = Centimes{4200};
    try {
        catalogue.modifier(livre);
    } catch (const ErreurStockage &erreur) {
        return erreur.texte();
    }
    return {};
}

} // namespace

void TestStockage::fichierAbimeMisDeCote()
{
    const Banc banc;
    const QString copie = livresModifies + QStringLiteral(".illisible");
    banc.ecrireUtilisateur(livresModifies, "{ mes prix, mal fermés");
    const auto catalogue = banc.charger();
    QCOMPARE(erreurALaModification(*catalogue), QString());
    QCOMPARE(banc.lireUtilisateur(copie), QByteArray("{ mes prix, mal fermés"));
    QCOMPARE(banc.charger()->livres(), catalogue->livres());

    banc.ecrireUtilisateur(livresModifies, "encore abîmé");
    QCOMPARE(erreurALaModification(*catalogue), QString());
    QCOMPARE(banc.lireUtilisateur(copie), QByteArray("{ mes prix, mal fermés"));
    QCOMPARE(banc.lireUtilisateur(copie + QStringLiteral("-2")), QByteArray("encore abîmé"));
}

void TestStockage::effacerPreserveAussi()
{
    const Banc banc;
    banc.ecrireUtilisateur(livresModifies, "abîmé");
    banc.charger()->revenirAuxValeursLivrees();
    QVERIFY(!QFile::exists(banc.cheminUtilisateur(livresModifies)));
    QCOMPARE(banc.lireUtilisateur(livresModifies + QStringLiteral(".illisible")), QByteArray("abîmé"));
}

void TestStockage::echecLaisseToutIntact_data()
{
    QTest::addColumn<QString>("panne");
    QTest::addColumn<QString>("raison");
    QTest::newRow("disque plein") << QStringLiteral("plein") << QStringLiteral("le fichier dépasse la taille permise");
    QTest::newRow("un fichier à la place du dossier")
        << QStringLiteral("fichier") << QStringLiteral("un fichier occupe la place du dossier");
    QTest::newRow("un dossier à la place du fichier")
        << QStringLiteral("dossier") << QStringLiteral("ce fichier est illisible et ne peut pas être mis de côté");
}

void TestStockage::echecLaisseToutIntact()
{
    QFETCH(QString, panne);
    QFETCH(QString, raison);
    const Banc banc;
    const auto catalogue = banc.charger();
    const QList<Livre> avant = catalogue->livres();
    std::optional<DisquePlein> plein;
    QByteArray fichierAvant;
    if (panne == QStringLiteral("fichier")) {
        banc.ecrireUtilisateur(QStringLiteral("x"), {});
        QVERIFY(QDir(banc.cheminUtilisateur()).removeRecursively());
        QVERIFY(QFile(banc.ressources().chemin(QStringLiteral("livres.json")))
                    .copy(QDir(banc.cheminUtilisateur()).absolutePath()));
    } else if (panne == QStringLiteral("dossier")) {
        QVERIFY(QDir().mkpath(banc.cheminUtilisateur(livresModifies)));
    } else {
        catalogue->enregistrerLivres();
        fichierAvant = banc.lireUtilisateur(livresModifies);
        plein.emplace();
    }
    const QString erreur = erreurALaModification(*catalogue);
    plein.reset();
    QVERIFY2(erreur.contains(raison), qPrintable(erreur));
    QCOMPARE(catalogue->livres(), avant);
    QCOMPARE(banc.lireUtilisateur(livresModifies), fichierAvant);
    const QStringList restes = QDir(banc.cheminUtilisateur()).entryList(QDir::Files | QDir::Hidden);
    QVERIFY2(restes.size() <= 1, qPrintable(restes.join(u' ')));
}

QTEST_GUILESS_MAIN(TestStockage)
#include "tst_stockage.moc"
