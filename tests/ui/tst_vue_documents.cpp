#include "documents/NumerotationFactures.h"
#include "tests/BancEcran.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"
#include "ui/documents/FicheFacture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Quillet;
using namespace std::chrono_literals;

namespace {

constexpr auto personne = "/nulle/part";
const QString facture = "Facture";
const QString enregistrer = "Enregistrer en PDF…";
const QString fermer = "Fermer";
const QString numero = "Numéro";

// The file's name that the dialog to save proposes, given up then.
QString nomPropose(QDialog *feuille)
{
    QString nom;
    const auto lireLeNom = [&](QDialog *dialogue) {
        nom = dialogue->findChild<QLineEdit *>()->text();
        dialogue->reject();
    };
    return Dialogues::cliquerPuisRepondre(feuille, enregistrer, {lireLeNom}) ? nom : QString();
}

QString numeroPropose(const QDialog *feuille)
{
    return qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->text();
}

// As a print server that has no more to tell than a queue's name.
void repondreEnCups(QTcpSocket *appel, bool nomme, QByteArray &questions)
{
    QObject::connect(appel, &QTcpSocket::readyRead, appel, [=, &questions, recu = QByteArray()]() mutable {
        recu += appel->readAll();
        const QByteArray fin("\r\n\r\n");
        if (recu.endsWith(fin))
            appel->write("HTTP/1.1 100 Continue" + fin);
        if (!recu.endsWith('\3')) // the end of a question
            return;
        const QByteArray question = recu.sliced(recu.indexOf(fin) + fin.size());
        recu.clear();
        questions += question;
        if (!nomme || question[2] != '@') // of CUPS itself: which queue is the default, which are there
            return;
        const QByteArray reponse = QByteArray::fromHex("02000000") + question.mid(4, 4)
                                   + QByteArrayLiteral("\1G\0\22attributes-charset\0\5utf-8"
                                                       "H\0\33attributes-natural-language\0\2fr"
                                                       "\4B\0\14printer-name\0\6MuetteA\0\14printer-info\0\6Muette\3");
        appel->write("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: "
                     + QByteArray::number(reponse.size()) + fin + reponse);
    });
}

QByteArray contenu(const QString &chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

} // namespace

// The invoice leaves, over the real window, through the real dialogs.
class TestVueDocuments : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("CUPS_SERVER", personne); // no test prints on a real printer
        QuilletApp::preparer(Theme::Mode::clair);
    }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        banc_->demarrer();
    }

    void cleanup() { banc_.reset(); }

    void numeroRetenuALEnregistrement()
    {
        const QTemporaryDir dossier;
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        QCOMPARE(numeroPropose(feuille), "2026-001");
        QCOMPARE(feuille->focusWidget()->accessibleName(), "Acheteur");
        QApplication::clipboard()->setMimeData(new QMimeData);
        QTest::keyClick(feuille->focusWidget(), Qt::Key_V, Qt::ControlModifier);
        Ecran::controle(feuille, fermer)->setFocus();
        QTest::keyClick(feuille->focusWidget(), Qt::Key_Tab);
        QCOMPARE(feuille->focusWidget()->accessibleName(), numero);
        QVERIFY(Ecran::taper(feuille, "Acheteur", "Ada Exemple\nExempleville"));

        QCOMPARE(nomPropose(feuille), "Facture 2026-001 – Éditions Davrel.pdf");
        QCOMPARE(retenu(), QString());

        QVERIFY(Ecran::taper(feuille, numero, "2026-012"));
        const QString chemin = dossier.filePath("À envoyer.pdf");
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {Dialogues::enregistrerSous(chemin)}));
        QVERIFY(contenu(chemin).startsWith("%PDF-"));
        QCOMPARE(retenu(), "2026-012");
        const QString issue = "Facture 2026-012 enregistrée.";
        BancEcran::revenirA(feuille); // on the same day, it still stands
        QVERIFY(Ecran::montre(feuille, issue));
        QVERIFY(Ecran::cliquer(feuille, fermer));

        feuille = banc_->ouvrir(facture);
        QCOMPARE(numeroPropose(feuille), "2026-013");
        QDir rouvert;
        const auto lireLeDossier = [&](QDialog *dialogue) {
            rouvert = qobject_cast<QFileDialog *>(dialogue)->directory();
            dialogue->reject();
        };
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {lireLeDossier}));
        QCOMPARE(rouvert, QDir(dossier.path()));
        QVERIFY(!Ecran::montre(feuille, issue));
    }

    void enregistrementManque()
    {
        const QTemporaryDir dossier;
        banc_->commander("suisse");
        const QString chemin = dossier.filePath("facture.pdf");
        std::optional<DisquePlein> plein;
        QString message;
        const auto remplirPuisEnregistrer = [&](QDialog *dialogue) {
            plein.emplace();
            Dialogues::enregistrerSous(chemin)(dialogue);
        };
        QVERIFY(Dialogues::cliquerPuisRepondre(banc_->ouvrir(facture), enregistrer,
                                               {remplirPuisEnregistrer, BancEcran::lire(message)}));
        plein.reset();
        QCOMPARE(message, QStringLiteral("La facture n’a pas été enregistrée.\n") + QDir::toNativeSeparators(chemin)
                              + QStringLiteral(" : le fichier dépasse la taille permise"));
        QVERIFY(QDir(dossier.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QCOMPARE(retenu(), QString());
    }

    // The file is there, but the preferences cannot be written: the seller is told.
    void numeroSansTrace()
    {
        const QTemporaryDir dossier;
        banc_->donnees.ecrireUtilisateur("obstacle", "pas un dossier");
        banc_->demarrer(Preferences(banc_->donnees.cheminUtilisateur("obstacle/Quillet.ini")));
        banc_->commander("suisse");
        const QString chemin = dossier.filePath("facture.pdf");
        QString message;
        QVERIFY(Dialogues::cliquerPuisRepondre(banc_->ouvrir(facture), enregistrer,
                                               {Dialogues::enregistrerSous(chemin), BancEcran::lire(message)}));
        QVERIFY2(message.startsWith("La facture 2026-001 est partie, mais son numéro n’a pas été retenu.\n"),
                 qPrintable(message));
        QVERIFY(QFile::exists(chemin));
    }

    // Two sessions had proposed it, or another takes it while the dialog stands open: this invoice waits, is shown with
    // the next number, then leaves with it.
    void numeroPrisEntreTemps()
    {
        const QTemporaryDir dossier;
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        NumerotationFactures ailleurs{banc_->donnees.preferences()};
        ailleurs.retenir("2026-001", Vendeur::davrel);
        QString message;
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {BancEcran::lire(message)}));
        QVERIFY2(message.startsWith("Le numéro 2026-001 a été retenu entre-temps"), qPrintable(message));
        QCOMPARE(numeroPropose(feuille), "2026-002");
        const auto choisir = Dialogues::enregistrerSous(dossier.filePath("f.pdf"));
        const auto tarder = [&](QDialog *dialogue) {
            ailleurs.retenir("2026-002", Vendeur::davrel);
            choisir(dialogue);
        };
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {tarder, BancEcran::lire(message)}));
        QVERIFY(QDir(dossier.path()).isEmpty());
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {choisir}));
        QCOMPARE(retenu(), "2026-003");
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {Dialogues::renoncer()})); // and once more
    }

    void impressionDansUnFichier()
    {
        const QTemporaryDir dossier;
        const QString chemin = dossier.filePath("imprimee.pdf");
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir(facture);
        const QString imprimer = "Imprimer 2 exemplaires";
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, imprimer, {Dialogues::renoncer()}));
        QCOMPARE(retenu(), QString());

        int exemplaires = 0;
        int caches = 0;
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, imprimer, {[&](QDialog *dialogue) {
                                                   for (const char *sansEffet : {"gbPrintRange", "reverse", "duplex"})
                                                       caches += dialogue->findChild<QWidget *>(sansEffet)->isHidden();
                                                   exemplaires = dialogue->findChild<QSpinBox *>("copies")->value();
                                                   auto *imprimantes = dialogue->findChild<QComboBox *>("printers");
                                                   imprimantes->setCurrentIndex(
                                                       imprimantes->count() - 1); // the file comes after the printers
                                                   dialogue->findChild<QLineEdit *>("filename")->setText(chemin);
                                                   dialogue->accept();
                                               }}));
        QCOMPARE(exemplaires, 2);
        QCOMPARE(caches, 3);
        QVERIFY(contenu(chemin).startsWith("%PDF-"));
        QVERIFY(Ecran::montre(feuille, "Facture 2026-001 enregistrée.") && Ecran::controle(feuille, "Ouvrir le PDF"));
        QCOMPARE(retenu(), "2026-001");
    }

    // It takes the call and never answers, or names a queue and tells nothing more of it: the window lives on, and a
    // file is proposed instead.
    void serviceDImpressionMuet()
    {
        const auto cas = [this](const char *nom, bool nomme, std::chrono::milliseconds patience) {
            const Rangee rangee(nom);
            init();
            QTcpServer muet;
            QVERIFY(muet.listen(QHostAddress::LocalHost));
            QByteArray questions;
            connect(&muet, &QTcpServer::newConnection, &muet,
                    [&] { repondreEnCups(muet.nextPendingConnection(), nomme, questions); });
            const auto rendre = qScopeGuard([] { qputenv("CUPS_SERVER", personne); });
            qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(muet.serverPort()));
            const QTemporaryDir dossier;
            banc_->commander("suisse");
            QDialog *feuille = banc_->ouvrir(facture);
            feuille->findChild<FicheFacture *>()->setPatience(patience);
            QTimer pouls;
            QSignalSpy battu(&pouls, &QTimer::timeout);
            pouls.start(20ms);
            QString message;
            const auto preferer = [&](QDialog *boite) {
                message = qobject_cast<QMessageBox *>(boite)->text();
                Ecran::cliquer(boite, enregistrer);
            };
            const auto enregistrerLa = Dialogues::enregistrerSous(dossier.filePath("facture.pdf"));
            QVERIFY(Dialogues::cliquerPuisRepondre(feuille, "Imprimer 2 exemplaires", {preferer, enregistrerLa}));
            QVERIFY2(message.startsWith("Le service d’impression ne répond pas : "), qPrintable(message));
            QVERIFY(battu.count() > patience / 100ms);
            QCOMPARE(questions.contains("/printers/Muette"), nomme);
            QCOMPARE(retenu(), "2026-001");
        };
        cas("toujours", false, 500ms);
        cas("après le nom d’une file", true, 2s);
    }

    void nomSansSuffixe()
    {
        const auto cas = [this](const char *nom, const char *tape, bool existe, bool remplacer, const char *ecrit) {
            const Rangee rangee(nom);
            init();
            const QTemporaryDir dossier;
            banc_->commander("suisse");
            const auto nommer = Dialogues::enregistrerSous(dossier.filePath(tape));
            bool nonParDefaut = true;
            const auto repondre = [&](QDialog *boite) {
                const auto *question = qobject_cast<QMessageBox *>(boite);
                nonParDefaut = question->button(QMessageBox::No) == question->defaultButton();
                question->button(remplacer ? QMessageBox::Yes : QMessageBox::No)->click();
            };
            QDialog *feuille = banc_->ouvrir(facture);
            if (existe) {
                QFile(dossier.filePath("v1.2.pdf")).open(QIODevice::WriteOnly);
                QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {nommer, repondre}));
            } else {
                QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {nommer}));
            }
            QVERIFY(nonParDefaut);
            for (const QString &fichier : QDir(dossier.path()).entryList(QDir::Files))
                QCOMPARE(contenu(dossier.filePath(fichier)).startsWith("%PDF-"), fichier == QLatin1String(ecrit));
            QCOMPARE(retenu().isEmpty(), !*ecrit);
        };
        cas("un point", "v1.2", false, false, "v1.2.pdf");
        cas("majuscules", "X.PDF", false, false, "X.PDF");
        cas("remplacé", "v1.2", true, true, "v1.2.pdf");
        cas("gardé", "v1.2", true, false, "");
    }

private:
    [[nodiscard]] QString retenu() const { return banc_->donnees.preferences().texte("derniereFacture.davrel"); }

    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestVueDocuments)
#include "tst_vue_documents.moc"
