#include "tests/BancEcran.h"
#include "tests/DisquePlein.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

using namespace Quillet;

// The documents of the parcel, over the real window, through the real dialogs.
class TestVueDocuments : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { banc_.reset(); }

    void pasDeDeclaration();
    void declarationAuClavier();
    void numeroRetenuALEnregistrement();
    void enregistrementManque();
    void numeroSansTrace();
    void numeroIllisible();
    void impressionDansUnFichier();
    void nomSansSuffixe_data();
    void nomSansSuffixe();
    void etatsDeLaFacture();
    void laFeuilleSuitLeJour();

private:
    [[nodiscard]] QString retenu() const
    {
        return banc_->donnees.preferences().texte(QStringLiteral("derniereFacture.davrel"));
    }

    std::unique_ptr<BancEcran> banc_;
};

namespace {

const QString douane = QStringLiteral("Déclaration en douane");
const QString facture = QStringLiteral("Facture");
const QString enregistrer = QStringLiteral("Enregistrer en PDF…");
const QString fermer = QStringLiteral("Fermer");
const QString numero = QStringLiteral("Numéro");

// Reads the sentence of a message, then closes it.
Dialogues::Reponse lire(QString &message)
{
    return [&message](QDialog *boite) {
        message = qobject_cast<QMessageBox *>(boite)->text();
        boite->reject();
    };
}

QByteArray contenu(const QString &chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

} // namespace

void TestVueDocuments::initTestCase()
{
    qputenv("CUPS_SERVER", "/nulle/part"); // no test prints on a real printer
    QuilletApp::preparer(Theme::Mode::clair);
}

void TestVueDocuments::init()
{
    banc_ = std::make_unique<BancEcran>();
    banc_->demarrer();
}

void TestVueDocuments::pasDeDeclaration()
{
    banc_->commander(QStringLiteral("ue"));
    QDialog *feuille = banc_->ouvrir(douane);
    const QString aucune =
        QStringLiteral("Pas de déclaration pour cette destination : elle reste dans l’Union européenne.");
    QVERIFY(Ecran::montre(feuille, aucune));
    QVERIFY(!Ecran::controle(feuille, QStringLiteral("Ouvrir laposte.fr")));
    banc_->app->commande().setHorsUE(true);
    QVERIFY(!Ecran::montre(feuille, aucune));
    QTRY_VERIFY(Ecran::controle(feuille, QStringLiteral("Ouvrir laposte.fr")));
}

void TestVueDocuments::declarationAuClavier()
{
    banc_->commander(QStringLiteral("suisse"));
    banc_->app->commande().ajuster(banc_->donnees.livres[1], 1);
    banc_->app->commande().setPoidsPese(Grammes{1250});
    QDialog *feuille = banc_->ouvrir(douane);
    Ecran::controle(feuille, QStringLiteral("Ouvrir laposte.fr"))->setFocus();
    QStringList copies;
    for (QTest::keyClick(feuille, Qt::Key_Tab); qobject_cast<QAbstractButton *>(feuille->focusWidget())
                                                && feuille->focusWidget()->accessibleName().startsWith(u"Copier");
         QTest::keyClick(feuille->focusWidget(), Qt::Key_Tab)) {
        const QWidget *bouton = feuille->focusWidget();
        QTest::keyClick(feuille->focusWidget(), Qt::Key_Space);
        copies.append(bouton->accessibleName().sliced(7) + u'=' + lisible(QApplication::clipboard()->text()));
    }
    QCOMPARE(copies,
             (QStringList{
                 QStringLiteral("Nature de l’envoi=Vente de marchandises"), QStringLiteral("Frais de port=11,19"),
                 QStringLiteral("Poids brut du colis (kg)=1,250"), QStringLiteral("Valeur totale=52,00"),
                 QStringLiteral("Description=Printed book – Livre 1"), QStringLiteral("Poids net unitaire (kg)=0,200"),
                 QStringLiteral("Valeur unitaire=15,00"), QStringLiteral("Pays d’origine=France"),
                 QStringLiteral("N° tarifaire (SH)=490199"), QStringLiteral("Description=Printed book – Livre 2"),
                 QStringLiteral("Poids net unitaire (kg)=0,000"), QStringLiteral("Valeur unitaire=22,00"),
                 QStringLiteral("Pays d’origine=France"), QStringLiteral("N° tarifaire (SH)=490199"),
                 QStringLiteral("Adresse=1 rue Exemple"), QStringLiteral("00000 Exempleville=00000 Exempleville")}));
}

void TestVueDocuments::numeroRetenuALEnregistrement()
{
    const QTemporaryDir dossier;
    banc_->commander(QStringLiteral("suisse"));
    QDialog *feuille = banc_->ouvrir(facture);
    const auto propose = [&] { return qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->text(); };
    QCOMPARE(propose(), QStringLiteral("2026-001"));
    QCOMPARE(feuille->focusWidget()->accessibleName(), QStringLiteral("Acheteur"));
    Ecran::controle(feuille, fermer)->setFocus();
    QTest::keyClick(feuille->focusWidget(), Qt::Key_Tab);
    QCOMPARE(feuille->focusWidget()->accessibleName(), numero);
    QVERIFY(Ecran::taper(feuille, QStringLiteral("Acheteur"), QStringLiteral("Ada Exemple\nExempleville")));

    QString nom;
    QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {[&](QDialog *dialogue) {
                                               nom = dialogue->findChild<QLineEdit *>()->text();
                                               dialogue->reject();
                                           }}));
    QCOMPARE(nom, QStringLiteral("Facture 2026-001 – Éditions Davrel.pdf"));
    QCOMPARE(retenu(), QString());

    QVERIFY(Ecran::taper(feuille, numero, QStringLiteral("2026-012")));
    const QString chemin = dossier.filePath(QStringLiteral("À envoyer.pdf"));
    QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {Dialogues::enregistrerSous(chemin)}));
    QVERIFY(contenu(chemin).startsWith("%PDF-"));
    QCOMPARE(retenu(), QStringLiteral("2026-012"));
    const QString issue = QStringLiteral("Facture 2026-012 enregistrée.");
    BancEcran::revenirA(feuille); // on the same day, it still stands
    QVERIFY(Ecran::montre(feuille, issue));
    QVERIFY(Ecran::cliquer(feuille, fermer));

    feuille = banc_->ouvrir(facture);
    QCOMPARE(propose(), QStringLiteral("2026-013"));
    QString dossierRouvert;
    QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {[&](QDialog *dialogue) {
                                               dossierRouvert =
                                                   qobject_cast<QFileDialog *>(dialogue)->directory().absolutePath();
                                               dialogue->reject();
                                           }}));
    QCOMPARE(dossierRouvert, QFileInfo(chemin).absolutePath());
    QVERIFY(!Ecran::montre(feuille, issue));
}

void TestVueDocuments::enregistrementManque()
{
    const QTemporaryDir dossier;
    banc_->commander(QStringLiteral("suisse"));
    const QString chemin = dossier.filePath(QStringLiteral("facture.pdf"));
    std::optional<DisquePlein> plein;
    QString message;
    const auto remplirPuisEnregistrer = [&](QDialog *dialogue) {
        plein.emplace();
        Dialogues::enregistrerSous(chemin)(dialogue);
    };
    QVERIFY(
        Dialogues::cliquerPuisRepondre(banc_->ouvrir(facture), enregistrer, {remplirPuisEnregistrer, lire(message)}));
    plein.reset();
    QCOMPARE(message, QStringLiteral("La facture n’a pas été enregistrée.\n") + QDir::toNativeSeparators(chemin)
                          + QStringLiteral(" : le fichier dépasse la taille permise"));
    QVERIFY(QDir(dossier.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QCOMPARE(retenu(), QString());
}

void TestVueDocuments::nomSansSuffixe_data()
{
    QTest::addColumn<QString>("tape");
    QTest::addColumn<QString>("existant"); // empty: none
    QTest::addColumn<bool>("remplacer");
    QTest::addColumn<QString>("ecrit"); // empty: none
    const QString aucun;
    QTest::newRow("un point") << QStringLiteral("v1.2") << aucun << false << QStringLiteral("v1.2.pdf");
    QTest::newRow("majuscules") << QStringLiteral("X.PDF") << aucun << false << QStringLiteral("X.PDF");
    QTest::newRow("remplacé") << QStringLiteral("v1.2") << QStringLiteral("v1.2.pdf") << true
                              << QStringLiteral("v1.2.pdf");
    QTest::newRow("gardé") << QStringLiteral("v1.2") << QStringLiteral("v1.2.pdf") << false << aucun;
}

void TestVueDocuments::nomSansSuffixe()
{
    QFETCH(QString, tape);
    QFETCH(QString, existant);
    QFETCH(bool, remplacer);
    QFETCH(QString, ecrit);
    const QTemporaryDir dossier;
    banc_->commander(QStringLiteral("suisse"));
    QDialog *feuille = banc_->ouvrir(facture);
    const auto nommer = Dialogues::enregistrerSous(dossier.filePath(tape));
    if (existant.isEmpty()) {
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {nommer}));
    } else {
        QFile(dossier.filePath(existant)).open(QIODevice::WriteOnly);
        const auto repondre = [&](QDialog *boite) {
            const auto *question = qobject_cast<QMessageBox *>(boite);
            QVERIFY(question->button(QMessageBox::No) == question->defaultButton());
            question->button(remplacer ? QMessageBox::Yes : QMessageBox::No)->click();
        };
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {nommer, repondre}));
    }
    for (const QString &nom : QDir(dossier.path()).entryList(QDir::Files))
        QCOMPARE(contenu(dossier.filePath(nom)).startsWith("%PDF-"), nom == ecrit);
    QCOMPARE(retenu().isEmpty(), ecrit.isEmpty());
}

// The file is there, but the preferences cannot be written: the seller is told.
void TestVueDocuments::numeroSansTrace()
{
    const QTemporaryDir dossier;
    banc_->donnees.ecrireUtilisateur(QStringLiteral("obstacle"), "pas un dossier");
    banc_->demarrer(Preferences(banc_->donnees.cheminUtilisateur(QStringLiteral("obstacle/Quillet.ini"))));
    banc_->commander(QStringLiteral("suisse"));
    const QString chemin = dossier.filePath(QStringLiteral("facture.pdf"));
    QString message;
    QVERIFY(Dialogues::cliquerPuisRepondre(banc_->ouvrir(facture), enregistrer,
                                           {Dialogues::enregistrerSous(chemin), lire(message)}));
    QVERIFY2(
        message.startsWith(QStringLiteral("La facture 2026-001 est partie, mais son numéro n’a pas été retenu.\n")),
        qPrintable(message));
    QVERIFY(QFile::exists(chemin));
}

// Rather no number than the first of the year once more.
void TestVueDocuments::numeroIllisible()
{
    const QString chemin = banc_->donnees.cheminUtilisateur(QStringLiteral("Quillet.ini"));
    QVERIFY(QDir().mkpath(chemin));
    banc_->demarrer(Preferences(chemin));
    banc_->commander(QStringLiteral("suisse"));
    QDialog *feuille = banc_->ouvrir(facture);
    QCOMPARE(qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->text(), QString());
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Le dernier numéro n’a pas pu être lu.\n") + chemin
                                       + QStringLiteral(" : un dossier occupe la place du fichier")));
}

void TestVueDocuments::impressionDansUnFichier()
{
    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("imprimee.pdf"));
    banc_->commander(QStringLiteral("suisse"));
    QDialog *feuille = banc_->ouvrir(facture);
    const QString imprimer = QStringLiteral("Imprimer 2 exemplaires");
    QVERIFY(Dialogues::cliquerPuisRepondre(feuille, imprimer, {Dialogues::renoncer()}));
    QCOMPARE(retenu(), QString());

    int exemplaires = 0;
    QVERIFY(Dialogues::cliquerPuisRepondre(
        feuille, imprimer, {[&](QDialog *dialogue) {
            exemplaires = dialogue->findChild<QSpinBox *>(QStringLiteral("copies"))->value();
            auto *imprimantes = dialogue->findChild<QComboBox *>(QStringLiteral("printers"));
            imprimantes->setCurrentIndex(imprimantes->count() - 1); // the file comes after the printers
            dialogue->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(chemin);
            dialogue->accept();
        }}));
    QCOMPARE(exemplaires, 2);
    QVERIFY(contenu(chemin).startsWith("%PDF-"));
    QCOMPARE(retenu(), QStringLiteral("2026-001"));
}

void TestVueDocuments::etatsDeLaFacture()
{
    const QString sansSiret =
        QStringLiteral("Numéro SIRET manquant : obligatoire sur la facture d’une micro-entreprise.");
    banc_->commander(QStringLiteral("suisse"));
    QDialog *feuille = banc_->ouvrir(facture);
    QVERIFY(!Ecran::montre(feuille, sansSiret));
    QVERIFY(Ecran::taper(feuille, numero, QStringLiteral("F12")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Ce numéro n’a pas la forme 2026-001 : il ne sera pas retenu.")));
    QVERIFY(Ecran::taper(feuille, numero, QStringLiteral("2062-001")));
    QVERIFY(Ecran::montre(
        feuille,
        QStringLiteral("Ce numéro est d’une année à venir : après lui, ceux de 2026 ne seront plus retenus.")));
    banc_->app->commande().setPoidsPese(Grammes{2001});
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Le port n’est pas encore connu : la facture apparaîtra avec lui.")));
    banc_->app->commande().vider();
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Facture impossible")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Une facture par vendeur : séparez les livres de Davrel et ceux de "
                                                  "Mireva en deux commandes.")));
    QVERIFY(Ecran::cliquer(feuille, fermer));

    banc_->app->commande().setVendeur(Vendeur::mireva);
    banc_->app->commande().ajuster(banc_->donnees.livres[2], 1);
    banc_->app->commande().setCodeDestination(vers("suisse"));
    feuille = banc_->ouvrir(facture);
    const QString sansIdentite = QStringLiteral("Le nom et l’adresse de Mireva manquent dans les réglages.");
    QVERIFY(Ecran::montre(feuille, sansIdentite));
    QVERIFY(Ecran::cliquer(feuille, douane));
    QVERIFY(Ecran::montre(feuille, sansIdentite));
    QVERIFY(!Ecran::montre(feuille, QStringLiteral("Expéditeur")));

    banc_->donnees.reglages.vendeurs[Vendeur::davrel].siret.reset();
    banc_->demarrer(banc_->donnees.preferences());
    banc_->commander(QStringLiteral("suisse"));
    QVERIFY(Ecran::montre(banc_->ouvrir(facture), sansSiret));
}

// A sheet left open over New Year's Eve.
void TestVueDocuments::laFeuilleSuitLeJour()
{
    banc_->donnees.tarifs.append(desTarifs("2027-01-01", Centimes{600}));
    banc_->jour = QDate(2026, 12, 31);
    banc_->demarrer();
    banc_->commander(QStringLiteral("france"));
    QDialog *feuille = banc_->ouvrir(facture);
    const auto propose = [&] { return qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->text(); };
    QCOMPARE(propose(), QStringLiteral("2026-001"));
    banc_->jour = QDate(2025, 12, 31);
    BancEcran::revenirA(feuille);
    QCOMPARE(propose(), QStringLiteral("2025-001"));
    banc_->jour = QDate(2027, 1, 1); // nobody left the sheet: the day is asked before an invoice leaves
    QString nom;
    QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {[&](QDialog *dialogue) {
                                               nom = dialogue->findChild<QLineEdit *>()->text();
                                               dialogue->reject();
                                           }}));
    QCOMPARE(nom, QStringLiteral("Facture 2027-001 – Éditions Davrel.pdf"));
    qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->setText(QStringLiteral("2027-040")); // dictated
    banc_->jour = QDate(2028, 1, 1);
    BancEcran::revenirA(feuille);
    QCOMPARE(propose(), QStringLiteral("2027-040")); // said to be of a past year, and left
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Ce numéro est d’une année passée : la suite de 2028 n’en change "
                                                  "pas.")));
}

QTEST_MAIN(TestVueDocuments)
#include "tst_vue_documents.moc"
