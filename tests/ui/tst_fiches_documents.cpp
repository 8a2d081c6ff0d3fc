#include "documents/NumerotationFactures.h"
#include "tests/BancEcran.h"
#include "tests/Rangees.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>

using namespace Quillet;

namespace {

const QString douane = "Déclaration en douane";
const QString facture = "Facture";
const QString enregistrer = "Enregistrer en PDF…";
const QString fermer = "Fermer";
const QString numero = "Numéro";
const QString acheteur = "Acheteur";

QString ecrit(const QDialog *feuille, const QString &champ)
{
    QWidget *trouve = Ecran::controle(feuille, champ);
    const auto *zone = qobject_cast<QPlainTextEdit *>(trouve);
    return zone ? zone->toPlainText() : qobject_cast<QLineEdit *>(trouve)->text();
}

} // namespace

// The documents of the parcel, over the real window: what their sheet says and keeps.
class TestFichesDocuments : public QObject
{
    Q_OBJECT

public slots:
    void ouvert(const QUrl &adresse) { ouverts_.append(adresse.toLocalFile()); }

private slots:
    void initTestCase()
    {
        qputenv("CUPS_SERVER", "/nulle/part"); // no test prints on a real printer
        QuilletApp::preparer(Theme::Mode::clair);
    }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        banc_->demarrer();
    }

    void cleanup() { banc_.reset(); }

    void pasDeDeclaration()
    {
        banc_->commander("ue");
        QDialog *feuille = banc_->ouvrir(douane);
        const QString aucune = "Pas de déclaration pour cette destination : elle reste dans l’Union européenne.";
        QVERIFY(Ecran::montre(feuille, aucune));
        QVERIFY(!Ecran::controle(feuille, "Ouvrir laposte.fr"));
        banc_->app->commande().setHorsUE(true);
        QVERIFY(!Ecran::montre(feuille, aucune));
        QTRY_VERIFY(Ecran::controle(feuille, "Ouvrir laposte.fr"));
    }

    void declarationAuClavier()
    {
        banc_->commander("suisse");
        banc_->app->commande().ajuster(banc_->donnees.livres[1], 1);
        banc_->app->commande().setPoidsPese(Grammes{1250});
        QDialog *feuille = banc_->ouvrir(douane);
        QVERIFY(Ecran::montre(feuille, "2 exemplaires"));
        QVERIFY(Ecran::montre(feuille, "Ce livre n’a pas encore été pesé : déclarez son vrai poids."));
        Ecran::controle(feuille, "Ouvrir laposte.fr")->setFocus();
        QStringList copies;
        for (QTest::keyClick(feuille, Qt::Key_Tab); qobject_cast<QAbstractButton *>(feuille->focusWidget())
                                                    && feuille->focusWidget()->accessibleName().startsWith(u"Copier");
             QTest::keyClick(feuille->focusWidget(), Qt::Key_Tab)) {
            const QWidget *bouton = feuille->focusWidget();
            QTest::keyClick(feuille->focusWidget(), Qt::Key_Space);
            copies.append(bouton->accessibleName().sliced(7) + u'=' + lisible(QApplication::clipboard()->text()));
        }
        QCOMPARE(copies.join(u'\n'),
                 "Nature de l’envoi=Vente de marchandises\nFrais de port=11,19\n"
                 "Poids brut du colis (kg)=1,250\nValeur totale=52,00\n"
                 "Description=Printed book – Livre 1\nPoids net unitaire (kg)=0,200\nValeur unitaire=15,00\n"
                 "Pays d’origine=France\nN° tarifaire (SH)=490199\n"
                 "Description=Printed book – Livre 2\nPoids net unitaire (kg)=0,000\nValeur unitaire=22,00\n"
                 "Pays d’origine=France\nN° tarifaire (SH)=490199\n"
                 "Adresse=1 rue Exemple\n00000 Exempleville=00000 Exempleville");
    }

    // Rather no number than the first of the year once more.
    void numeroIllisible()
    {
        const QString chemin = banc_->donnees.cheminUtilisateur("Quillet.ini");
        QVERIFY(QDir().mkpath(chemin));
        banc_->demarrer(Preferences(chemin));
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        QCOMPARE(ecrit(feuille, numero), QString());
        QVERIFY(Ecran::montre(feuille, QStringLiteral("Le dernier numéro n’a pas pu être lu.\n") + chemin
                                           + QStringLiteral(" : un dossier occupe la place du fichier")));
    }

    // What has left for this order is said when the sheet opens again, with the buyer as typed; another order knows
    // nothing of it.
    void laFactureDejaPartie()
    {
        const QTemporaryDir dossier;
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        const QString sansAcheteur = "Acheteur manquant : son nom et son adresse sont obligatoires sur la facture.";
        QVERIFY(Ecran::montre(feuille, sansAcheteur));
        QApplication::clipboard()->setText("\r\n   Ada Exemple \r\n\r\n\t1 rue Exemple\r\n");
        QTest::keyClick(Ecran::controle(feuille, acheteur), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(ecrit(feuille, acheteur), "Ada Exemple\n1 rue Exemple");
        QVERIFY(!Ecran::montre(feuille, sansAcheteur));
        sauver(feuille, dossier);
        QVERIFY(Ecran::cliquer(feuille, fermer));
        QVERIFY(Ecran::cliquer(&banc_->app->fenetre(), "Tout réinitialiser"));
        QVERIFY(banc_->app->commande().bon().estVide());
        QVERIFY(Ecran::cliquer(&banc_->app->fenetre(), "Annuler"));

        feuille = banc_->ouvrir(facture);
        QVERIFY(Ecran::montre(feuille, "La facture 2026-001 est déjà partie pour cette commande. Pour la sortir de "
                                       "nouveau, reprenez ce numéro."));
        QCOMPARE(ecrit(feuille, acheteur), "Ada Exemple\n1 rue Exemple");
        QCOMPARE(ecrit(feuille, numero), "2026-002");
        QVERIFY(Ecran::taper(feuille, numero, "2026-001"));
        QVERIFY(Ecran::montre(feuille, "La facture 2026-001 est déjà partie pour cette commande."));
        QVERIFY(Ecran::cliquer(feuille, fermer));

        banc_->app->commande().vider();
        banc_->commander("suisse"); // the next buyer may want the very same
        feuille = banc_->ouvrir(facture);
        QCOMPARE(ecrit(feuille, acheteur), "");
        QVERIFY(Ecran::taper(feuille, numero, "2026-001"));
        QVERIFY(!Ecran::montre(feuille, "La facture 2026-001 est déjà partie pour cette commande."));
        QVERIFY(Ecran::montre(feuille, "Une facture 2026-001 est déjà partie depuis l’ouverture de Quillet."));
    }

    void lePdfSOuvre()
    {
        QTemporaryDir dossier;
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        const QString pdf = "Ouvrir le PDF";
        QVERIFY(!Ecran::controle(feuille, pdf));
        const QString sautes = "Ce numéro n’est pas le suivant : la suite attend 2026-001, et les numéros sautés "
                               "resteraient sans facture.";
        QVERIFY(Ecran::taper(feuille, numero, "2026-003"));
        QVERIFY(Ecran::montre(feuille, sautes));
        sauver(feuille, dossier);
        QVERIFY(!Ecran::montre(feuille, sautes)); // it is the last one now
        QDesktopServices::setUrlHandler("file", this, "ouvert");
        const auto rendre = qScopeGuard([] { QDesktopServices::unsetUrlHandler("file"); });
        QVERIFY(Ecran::cliquer(feuille, pdf));
        QVERIFY(Ecran::cliquer(feuille, "Ouvrir le dossier"));
        QCOMPARE(ouverts_, (QStringList{dossier.filePath("facture.pdf"), dossier.path()}));
        QVERIFY(QFile::remove(dossier.filePath("facture.pdf")));
        QString message;
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, pdf, {BancEcran::lire(message)}));
        QCOMPARE(message, "Fichier ou dossier introuvable, déplacé ou supprimé :\n" + dossier.filePath("facture.pdf"));
        QVERIFY(Ecran::taper(feuille, acheteur, "Ada")); // an invoice that has not left
        QVERIFY(!Ecran::controle(feuille, pdf));
    }

    // In the sheet itself, which Escape gives back before it closes it.
    void lApercuSAgrandit()
    {
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        QVERIFY(Ecran::cliquer(feuille, "Agrandir la facture"));
        QCOMPARE(Dialogues::devant(), feuille);
        QVERIFY(!Ecran::controle(feuille, acheteur));
        QWidget *page = feuille->focusWidget();
        QCOMPARE(page->accessibleName(), "Facture 2026-001 – Éditions Davrel");
        const auto *ascenseur = qobject_cast<QScrollArea *>(page)->verticalScrollBar();
        QCOMPARE(ascenseur->maximum(), 0);
        QVERIFY(Ecran::cliquer(feuille, "100 %"));
        QTRY_VERIFY(ascenseur->maximum() > 0);
        for (const auto touche : {Qt::Key_P, Qt::Key_S}) { // they work here too
            // Offscreen, no dialog gives it back.
            feuille->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(feuille));
            const auto presser = [&] {
                QTest::keyClick(page, touche, Qt::ControlModifier);
                return true;
            };
            QVERIFY(Dialogues::fairePuisRepondre(presser, {Dialogues::renoncer()}));
        }
        QTest::keyClick(page, Qt::Key_Escape);
        QCOMPARE(feuille->focusWidget()->accessibleName(), "Agrandir la facture");
        QVERIFY(Ecran::controle(feuille, acheteur));

        const QTemporaryDir dossier;
        QVERIFY(Ecran::cliquer(feuille, "Agrandir la facture"));
        const auto enregistrerDIci = [&] {
            BancEcran::revenirA(feuille);
            QTest::keyClick(page, Qt::Key_S, Qt::ControlModifier);
            return true;
        };
        const auto sous = Dialogues::enregistrerSous(dossier.filePath("facture.pdf"));
        QVERIFY(Dialogues::fairePuisRepondre(enregistrerDIci, {sous}));
        QVERIFY(Ecran::montre(feuille, "Facture 2026-001 enregistrée.")); // back in sight
    }

    void etatsDeLaFacture()
    {
        const QString sansSiret = "Numéro SIRET manquant : obligatoire sur la facture d’une micro-entreprise.";
        banc_->commander("suisse");
        NumerotationFactures{banc_->donnees.preferences()}.retenir("2026-004", Vendeur::davrel);
        QDialog *feuille = banc_->ouvrir(facture);
        QVERIFY(!Ecran::montre(feuille, sansSiret));
        for (const auto &[saisi, phrase] : Rangees<const char *>{
                 {"F12", "Ce numéro n’a pas la forme 2026-001 : il ne sera pas retenu."},
                 {"2062-001", "Ce numéro est d’une année à venir : après lui, ceux de 2026 ne seront plus retenus."},
                 {"2025-001", "Ce numéro est d’une année passée : la suite de 2026 n’en change pas."},
                 {"2026-007", "Ce numéro n’est pas le suivant : la suite attend 2026-005, et les numéros sautés "
                              "resteraient sans facture."},
                 {"2026-004",
                  "Ce numéro ne vient pas après 2026-004, le dernier retenu : une facture le porte peut-être déjà."},
                 {"", "La facture n’a pas de numéro : aucun ne sera retenu."},
             }) {
            QVERIFY(Ecran::taper(feuille, numero, saisi));
            QVERIFY2(Ecran::montre(feuille, phrase), phrase);
        }
        banc_->app->commande().setPoidsPese(Grammes{2001});
        QVERIFY(Ecran::montre(feuille, "Le port n’est pas encore connu : la facture apparaîtra avec lui."));
        banc_->app->commande().vider();
        QVERIFY(Ecran::montre(feuille, "Facture impossible"));
        QVERIFY(Ecran::montre(feuille, "Une facture par vendeur : séparez les livres de Davrel et ceux de "
                                       "Mireva en deux commandes."));
        QVERIFY(Ecran::cliquer(feuille, fermer));

        banc_->app->commande().setVendeur(Vendeur::mireva);
        banc_->app->commande().ajuster(banc_->donnees.livres[2], 1);
        banc_->app->commande().setCodeDestination(vers("suisse"));
        feuille = banc_->ouvrir(facture);
        const QString sansIdentite = "Le nom et l’adresse de Mireva manquent dans les réglages.";
        QVERIFY(Ecran::montre(feuille, sansIdentite));
        QVERIFY(Ecran::cliquer(feuille, douane));
        QVERIFY(Ecran::montre(feuille, sansIdentite));
        QVERIFY(!Ecran::montre(feuille, "Expéditeur"));

        banc_->donnees.reglages.vendeurs[Vendeur::davrel].siret.reset();
        banc_->demarrer(banc_->donnees.preferences());
        banc_->commander("suisse");
        QVERIFY(Ecran::montre(banc_->ouvrir(facture), sansSiret));
    }

    // A sheet left open over New Year's Eve.
    void laFeuilleSuitLeJour()
    {
        banc_->donnees.tarifs.append(desTarifs("2027-01-01", Centimes{600}));
        banc_->jour = QDate(2026, 12, 31);
        banc_->demarrer();
        banc_->commander("france");
        QDialog *feuille = banc_->ouvrir(facture);
        QCOMPARE(ecrit(feuille, numero), "2026-001");
        banc_->jour = QDate(2025, 12, 31);
        BancEcran::revenirA(feuille);
        QCOMPARE(ecrit(feuille, numero), "2025-001");
        banc_->jour = QDate(2027, 1, 1); // nobody left the sheet: the day is asked before an invoice leaves
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {Dialogues::renoncer()}));
        QCOMPARE(ecrit(feuille, numero), "2027-001");
        qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->setText("2027-040"); // dictated
        banc_->jour = QDate(2028, 1, 1);
        BancEcran::revenirA(feuille);
        QCOMPARE(ecrit(feuille, numero), "2027-040"); // said to be of a past year, and left
        QVERIFY(Ecran::montre(feuille, "Ce numéro est d’une année passée : la suite de 2028 n’en change pas."));
    }

private:
    static void sauver(QDialog *feuille, const QTemporaryDir &dossier)
    {
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer,
                                               {Dialogues::enregistrerSous(dossier.filePath("facture.pdf"))}));
    }

    QStringList ouverts_;
    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestFichesDocuments)
#include "tst_fiches_documents.moc"
