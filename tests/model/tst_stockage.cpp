#include "tests/Banc.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"

#include <QSignalSpy>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

using namespace Quillet;

namespace {

using EtatSysteme = struct stat;
bool disqueSourd = false;
bool dossierSourd = false;

} // namespace

// Stands before the system's own, for Qt too: a disk that fails, or is found full, only when it is asked to take all.
extern "C" int fdatasync(int)
{
    errno = EIO;
    return disqueSourd ? -1 : 0;
}

extern "C" int fsync(int fd)
{
    EtatSysteme etat{};
    errno = EIO;
    return dossierSourd && fstat(fd, &etat) == 0 && S_ISDIR(etat.st_mode) ? -1 : 0;
}

namespace {

const QString livresModifies = "livres-modifies.json";

QString erreurALaModification(Catalogue &catalogue)
{
    Livre livre = catalogue.donnees().livres[0];
    livre.prix = Centimes{4200};
    try {
        catalogue.modifier({livre});
    } catch (const ErreurStockage &erreur) {
        return erreur.texte();
    }
    return {};
}

} // namespace

class TestStockage : public QObject
{
    Q_OBJECT

private slots:
    void fichierAbimeMisDeCote()
    {
        const Banc banc;
        const QString copie = livresModifies + QStringLiteral(".illisible");
        banc.ecrireUtilisateur(livresModifies, "{ mes prix, mal fermés");
        const auto catalogue = banc.charger();
        QCOMPARE(erreurALaModification(*catalogue), QString());
        QCOMPARE(banc.lireUtilisateur(copie), QByteArray("{ mes prix, mal fermés"));
        QCOMPARE(banc.charger()->donnees().livres, catalogue->donnees().livres);

        banc.ecrireUtilisateur(livresModifies, "encore abîmé");
        QCOMPARE(erreurALaModification(*catalogue), QString());
        QCOMPARE(banc.lireUtilisateur(copie), QByteArray("{ mes prix, mal fermés"));
        QCOMPARE(banc.lireUtilisateur(copie + QStringLiteral("-2")), QByteArray("encore abîmé"));
    }

    // Too large to be read or copied: it is kept all the same, and the books can be.
    void fichierDemesureMisDeCote()
    {
        const Banc banc;
        const qint64 demesure = Fichier::Borne::toute + 1;
        const auto grossir = [&] {
            banc.ecrireUtilisateur(livresModifies, "x");
            QVERIFY(QFile::resize(banc.cheminUtilisateur(livresModifies), demesure));
        };
        const auto taille = [&](const char *copie) {
            return QFileInfo(banc.cheminUtilisateur(livresModifies + QString::fromLatin1(copie))).size();
        };
        grossir();
        const auto catalogue = banc.charger();
        {
            const DisquePlein plein(0);
            QVERIFY(!erreurALaModification(*catalogue).isEmpty());
        }
        QCOMPARE(taille(""), demesure);
        QCOMPARE(erreurALaModification(*catalogue), QString());
        QCOMPARE(banc.charger()->donnees().livres, catalogue->donnees().livres);
        grossir();
        catalogue->revenirAuxValeursLivrees();
        QCOMPARE(taille(".illisible"), demesure);
        QCOMPARE(taille(".illisible-2"), demesure);
        QCOMPARE(QDir(banc.cheminUtilisateur()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    // Repaired by hand, or restored from a backup, while the program held the shipped values in memory.
    void fichierChangeEntreTemps()
    {
        const QByteArray repare = R"({"1":{"prix":1911,"disponible":true}})";
        const Banc banc;
        banc.ecrireUtilisateur(livresModifies, repare + ',');
        const auto catalogue = banc.charger();
        QCOMPARE(catalogue->donnees().livres[0].prix, Centimes{1500});
        banc.ecrireUtilisateur(livresModifies, repare);
        QCOMPARE(erreurALaModification(*catalogue), QString());
        QCOMPARE(banc.lireUtilisateur(livresModifies + QStringLiteral(".illisible")), repare);
        catalogue->modifier({});
        QVERIFY(!QFile::exists(banc.cheminUtilisateur(livresModifies + QStringLiteral(".illisible-2"))));
    }

    void echecsRepetesSansCopiesEnTrop()
    {
        const Banc banc;
        banc.ecrireUtilisateur(livresModifies, "abîmé");
        const auto catalogue = banc.charger();
        for (int essai = 0; essai < 3; ++essai) {
            const DisquePlein plein; // room for the copy, not for the books
            QVERIFY(!erreurALaModification(*catalogue).isEmpty());
        }
        QCOMPARE(QDir(banc.cheminUtilisateur()).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{livresModifies, livresModifies + QStringLiteral(".illisible")}));
    }

    void effacerPreserveAussi()
    {
        const Banc banc;
        banc.ecrireUtilisateur(livresModifies, "abîmé");
        const auto catalogue = banc.charger();
        QSignalSpy change(catalogue.get(), &Catalogue::change);
        catalogue->revenirAuxValeursLivrees();
        QCOMPARE(change.count(), 0); // they stood already
        QVERIFY(!QFile::exists(banc.cheminUtilisateur(livresModifies)));
        QCOMPARE(banc.lireUtilisateur(livresModifies + QStringLiteral(".illisible")), QByteArray("abîmé"));
    }

    // The folder's new names may not be on the disk yet: nothing is told as done, and the next try asks again.
    void dossierQuiNeRepondPas()
    {
        const Banc banc;
        const auto catalogue = banc.charger();
        dossierSourd = true;
        QVERIFY(!erreurALaModification(*catalogue).isEmpty());
        QVERIFY(!QFileInfo::exists(banc.cheminUtilisateur()));
        dossierSourd = false;
        QCOMPARE(erreurALaModification(*catalogue), QString());
        const QByteArray garde = banc.lireUtilisateur(livresModifies);
        dossierSourd = true;
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, catalogue->revenirAuxValeursLivrees());
        dossierSourd = false;
        QCOMPARE(banc.lireUtilisateur(livresModifies), garde);
    }

    void echecLaisseToutIntact()
    {
        enum class Panne { plein, sourd, dossierSourd, fichier, dossier, tube, infini };
        for (const auto &[raison, panne] : Rangees<Panne>{
                 {"le fichier dépasse la taille permise", Panne::plein},
                 {"le disque ne répond pas correctement", Panne::sourd},
                 {"le disque ne répond pas correctement", Panne::dossierSourd},
                 {"un fichier occupe la place d’un dossier", Panne::fichier},
                 {"un dossier occupe la place du fichier", Panne::dossier},
                 {"ce n’est pas un fichier ordinaire", Panne::tube},
                 {"ce n’est pas un fichier ordinaire", Panne::infini},
             }) {
            const Rangee rangee(raison);
            const Banc banc;
            const auto catalogue = banc.charger();
            const QList<Livre> avant = catalogue->donnees().livres;
            std::optional<DisquePlein> plein;
            QByteArray fichierAvant;
            if (panne == Panne::fichier) {
                banc.ecrireUtilisateur("x", {});
                QVERIFY(QDir(banc.cheminUtilisateur()).removeRecursively());
                QVERIFY(
                    QFile(banc.ressources().chemin("livres.json")).copy(QDir(banc.cheminUtilisateur()).absolutePath()));
            } else if (panne == Panne::dossier) {
                QVERIFY(QDir().mkpath(banc.cheminUtilisateur(livresModifies)));
            } else if (panne == Panne::tube || panne == Panne::infini) {
                const std::string chemin = banc.cheminUtilisateur(livresModifies).toStdString();
                QVERIFY(QDir().mkpath(banc.cheminUtilisateur()));
                QCOMPARE(panne == Panne::tube ? mkfifo(chemin.c_str(), 0600) : symlink("/dev/zero", chemin.c_str()), 0);
                QCOMPARE(banc.charger()->donnees().livres, avant); // read as any file that is none
            } else {
                catalogue->modifier({});
                fichierAvant = banc.lireUtilisateur(livresModifies);
                if (panne == Panne::plein)
                    plein.emplace();
                disqueSourd = panne == Panne::sourd;
                dossierSourd = panne == Panne::dossierSourd;
            }
            const QString erreur = erreurALaModification(*catalogue);
            disqueSourd = dossierSourd = false;
            plein.reset();
            QVERIFY2(erreur.contains(raison), qPrintable(erreur));
            QCOMPARE(catalogue->donnees().livres, avant);
            if (!fichierAvant.isEmpty())
                QCOMPARE(banc.lireUtilisateur(livresModifies), fichierAvant);
            const QStringList restes = QDir(banc.cheminUtilisateur()).entryList(QDir::Files | QDir::Hidden);
            QVERIFY2(restes.size() <= 1, qPrintable(restes.join(u' ')));
        }
    }
};

QTEST_GUILESS_MAIN(TestStockage)
#include "tst_stockage.moc"
