#include "tests/Banc.h"
#include "ui/Fenetre.h"
#include "ui/QuilletApp.h"
#include "ui/documents/FileImpression.h"
#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTextEdit>

// The sheets over the real window: the reply, and the documents of the parcel.
class TestFeuilles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void boutonsSelonLaCommande();
    void reponseSelonLaSaisie();
    void reponseDansSaLangue();
    void reponseImpossible();
    void pasDeDeclaration();
    void declarationAuClavier();
    void numeroRetenuALEnregistrement();
    void enregistrementManque_data();
    void enregistrementManque();
    void numeroSansTrace();
    void impressionDansUnFichier();
    void refusDeLaFile();
    void etatsDeLaFacture();

private:
    void demarrer(const Preferences &preferences);
    // Opens the sheet behind a button of the summary.
    QDialog *ouvrir(const QString &bouton);
    void commander(const QString &destination);
    [[nodiscard]] QString retenu() const
    {
        return banc_->preferences().texte(QStringLiteral("derniereFacture.davrel"));
    }

    std::unique_ptr<Banc> banc_;
    std::unique_ptr<QuilletApp> app_;
};

namespace {

const QString bDouane = QStringLiteral("Déclaration en douane");
const QString bFacture = QStringLiteral("Facture");
const QString bEnregistrer = QStringLiteral("Enregistrer en PDF…");
const QString fermer = QStringLiteral("Fermer");
const QString numero = QStringLiteral("Numéro");

// The sentence of the message that comes over the sheet, which is then closed.
QString messageApres(QDialog *feuille, const QString &bouton, const std::function<void(QDialog *)> &reponse)
{
    QString message;
    Ecran::auDialogueSuivant([&](QDialog *dialogue) {
        Ecran::auDialogueSuivant([&](QDialog *suivant) {
            if (const auto *boite = qobject_cast<QMessageBox *>(suivant)) {
                message = boite->text();
                suivant->reject();
            }
        });
        reponse(dialogue);
    });
    Ecran::cliquer(feuille, bouton);
    return message;
}

} // namespace

void TestFeuilles::initTestCase()
{
    qputenv("CUPS_SERVER", "/nulle/part"); // no test prints on a real printer
    QuilletApp::preparer(Theme::Mode::clair);
}

void TestFeuilles::init()
{
    banc_ = std::make_unique<Banc>();
    demarrer(banc_->preferences());
}

void TestFeuilles::demarrer(const Preferences &preferences)
{
    app_.reset();
    banc_->deposer();
    app_ = std::make_unique<QuilletApp>(banc_->ressources(), banc_->stockage(), preferences, [] { return jourDuBanc; });
    app_->fenetre().show();
    QVERIFY(QTest::qWaitForWindowActive(&app_->fenetre()));
}

void TestFeuilles::cleanup()
{
    app_.reset();
}

QDialog *TestFeuilles::ouvrir(const QString &bouton)
{
    Ecran::cliquer(&app_->fenetre(), bouton);
    QDialog *feuille = Ecran::feuille();
    if (feuille && !QTest::qWaitForWindowActive(feuille))
        return nullptr;
    return feuille;
}

void TestFeuilles::commander(const QString &destination)
{
    app_->commande().ajuster(banc_->livres[0], 2);
    app_->commande().setCodeDestination(destination);
}

void TestFeuilles::boutonsSelonLaCommande()
{
    const auto actif = [this](const QString &bouton) { return Ecran::controle(&app_->fenetre(), bouton)->isEnabled(); };
    const QString enFrancais = QStringLiteral("E-mail en français");
    const QString enAnglais = QStringLiteral("E-mail en anglais");
    QVERIFY(!actif(bFacture) && !actif(enFrancais));
    commander(QStringLiteral("ue"));
    QVERIFY(actif(bFacture) && actif(bDouane) && actif(enAnglais));
    QVERIFY(Ecran::cliquer(&app_->fenetre(), QStringLiteral("Français")));
    QVERIFY(actif(enFrancais));
    app_->commande().setPoidsPese(Grammes{2001}); // beyond the last tier
    QVERIFY(!actif(bFacture) && !actif(enFrancais));
}

void TestFeuilles::reponseSelonLaSaisie()
{
    commander(QStringLiteral("france"));
    QDialog *feuille = ouvrir(QStringLiteral("E-mail en français"));
    QVERIFY(feuille);
    const QString sansLien =
        QStringLiteral("Collez le lien de paiement : sinon le message garde « [lien] » à remplacer.");
    const QString refusee = QStringLiteral("Ce n’est pas une adresse seule : le message s’ouvrira sans destinataire.");
    const auto *message = feuille->findChild<QTextEdit *>();
    QVERIFY(Ecran::montre(feuille, sansLien));
    QVERIFY(!message->toPlainText().contains(QStringLiteral("À : ")));

    QVERIFY(Ecran::taper(feuille, QStringLiteral("Lien de paiement"), QStringLiteral("https://lien.example/7")));
    QVERIFY(!Ecran::montre(feuille, sansLien));
    QVERIFY(Ecran::taper(feuille, QStringLiteral("E-mail de l’acheteur"), QStringLiteral("ada@exemple.fr,b@c.fr")));
    QVERIFY(Ecran::montre(feuille, refusee));
    QVERIFY(Ecran::taper(feuille, QStringLiteral("E-mail de l’acheteur"), QStringLiteral("ada@exemple.fr")));
    QVERIFY(!Ecran::montre(feuille, refusee));
    const QStringList lignes = lisible(message->toPlainText()).split(u'\n');
    QCOMPARE(lignes.mid(0, 3), (QStringList{QStringLiteral("Votre commande de livres – davrel.example"),
                                            QStringLiteral("À : ada@exemple.fr"), QStringLiteral("Bonjour,")}));
    QVERIFY(lignes.contains(QStringLiteral("Pour régler, ouvrez ce lien : https://lien.example/7")));
    const QTextCursor total = message->document()->find(QStringLiteral("Total à payer"));
    QVERIFY(total.charFormat().fontWeight() > QFont::Normal);
    QVERIFY(message->document()->find(QStringLiteral("Pour régler")).charFormat().fontWeight() == QFont::Normal);

    // Return is for the message, wherever the focus has been.
    auto *envoyer = qobject_cast<QPushButton *>(Ecran::controle(feuille, QStringLiteral("Ouvrir dans Mail")));
    envoyer->setFocus();
    auto *lien = qobject_cast<QLineEdit *>(Ecran::controle(feuille, QStringLiteral("Lien de paiement")));
    lien->setFocus();
    QVERIFY(envoyer->isDefault());
    QApplication::clipboard()->setText(QStringLiteral("https://lien\r\n.example/8\n"));
    lien->selectAll();
    lien->paste();
    QCOMPARE(lien->text(), QStringLiteral("https://lien.example/8"));

    QTest::keyClick(feuille, Qt::Key_Escape);
    QTRY_VERIFY(!Ecran::feuille());
    feuille = ouvrir(QStringLiteral("E-mail en français"));
    QVERIFY(Ecran::montre(feuille, sansLien)); // nothing typed outlives the sheet
}

void TestFeuilles::reponseDansSaLangue()
{
    commander(QStringLiteral("suisse"));
    QDialog *feuille = ouvrir(QStringLiteral("E-mail en anglais"));
    QVERIFY(feuille);
    QVERIFY(qobject_cast<QAbstractButton *>(Ecran::controle(feuille, QStringLiteral("Anglais")))->isChecked());
    QVERIFY(Ecran::montre(
        feuille, QStringLiteral("Collez le lien de paiement : sinon le message garde « [link] » à remplacer.")));
    QVERIFY(Ecran::cliquer(feuille, QStringLiteral("Français")));
    QVERIFY(Ecran::montre(
        feuille, QStringLiteral("Collez le lien de paiement : sinon le message garde « [lien] » à remplacer.")));
    QVERIFY(feuille->findChild<QTextEdit *>()->toPlainText().contains(QStringLiteral("Bonjour,")));
    QVERIFY(Ecran::cliquer(feuille, fermer));
    QVERIFY(Ecran::controle(&app_->fenetre(), QStringLiteral("E-mail en français")));
}

void TestFeuilles::reponseImpossible()
{
    app_->commande().setVendeur(Vendeur::mireva); // whose identity is not in the settings
    app_->commande().ajuster(banc_->livres[2], 1);
    QDialog *feuille = ouvrir(QStringLiteral("E-mail en français"));
    QVERIFY(feuille);
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Réponse impossible")));
    QVERIFY(Ecran::montre(feuille,
                          QStringLiteral("Une réponse par vendeur : séparez les livres de Davrel et ceux de Mireva.")));
    QVERIFY(!Ecran::controle(feuille, QStringLiteral("Ouvrir dans Mail")));
    QVERIFY(!Ecran::controle(feuille, QStringLiteral("Français")));
    QCOMPARE(feuille->size(), QSize(420, 260));
    for (const QLabel *texte : feuille->findChildren<QLabel *>())
        QVERIFY2(!texte->isVisible() || texte->height() >= texte->heightForWidth(texte->width()),
                 qPrintable(texte->text())); // not cut
}

void TestFeuilles::pasDeDeclaration()
{
    commander(QStringLiteral("ue"));
    QDialog *feuille = ouvrir(bDouane);
    QVERIFY(feuille);
    const QString aucune =
        QStringLiteral("Pas de déclaration pour cette destination : elle reste dans l’Union européenne.");
    QVERIFY(Ecran::montre(feuille, aucune));
    QVERIFY(!Ecran::controle(feuille, QStringLiteral("Ouvrir laposte.fr")));
    app_->commande().setHorsUE(true);
    QVERIFY(!Ecran::montre(feuille, aucune));
    QTRY_VERIFY(Ecran::controle(feuille, QStringLiteral("Ouvrir laposte.fr")));
}

void TestFeuilles::declarationAuClavier()
{
    commander(QStringLiteral("suisse"));
    app_->commande().ajuster(banc_->livres[1], 1);
    app_->commande().setPoidsPese(Grammes{1250});
    QDialog *feuille = ouvrir(bDouane);
    QVERIFY(feuille);
    Ecran::controle(feuille, QStringLiteral("Ouvrir laposte.fr"))->setFocus();
    QStringList copies;
    QList<const QWidget *> boutons;
    for (QTest::keyClick(feuille, Qt::Key_Tab); qobject_cast<QAbstractButton *>(feuille->focusWidget())
                                                && feuille->focusWidget()->accessibleName().startsWith(u"Copier");
         QTest::keyClick(feuille->focusWidget(), Qt::Key_Tab)) {
        const QWidget *bouton = feuille->focusWidget();
        QTest::keyClick(feuille->focusWidget(), Qt::Key_Space);
        copies.append(bouton->accessibleName().sliced(7) + u'=' + lisible(QApplication::clipboard()->text()));
        boutons.append(bouton);
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
    // Each check mark has its own second and a half.
    const auto cochee = [](const QWidget *bouton) { return !bouton->accessibleDescription().isEmpty(); };
    QVERIFY(cochee(boutons.first()) && cochee(boutons.last()));
    QTest::qWait(1000);
    qobject_cast<QAbstractButton *>(Ecran::controle(feuille, boutons.last()->accessibleName()))->click();
    QTRY_VERIFY_WITH_TIMEOUT(!cochee(boutons.first()), 1000);
    QVERIFY(cochee(boutons.last()));
    QTRY_VERIFY_WITH_TIMEOUT(!cochee(boutons.last()), 1600);
}

void TestFeuilles::numeroRetenuALEnregistrement()
{
    const QTemporaryDir dossier;
    commander(QStringLiteral("suisse"));
    QDialog *feuille = ouvrir(bFacture);
    QVERIFY(feuille);
    QCOMPARE(qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->text(), QStringLiteral("2026-001"));
    QVERIFY(Ecran::taper(feuille, QStringLiteral("Acheteur"), QStringLiteral("Ada Exemple\nExempleville")));

    QString propose;
    Ecran::auDialogueSuivant([&](QDialog *dialogue) {
        propose = dialogue->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
        dialogue->reject();
    });
    QVERIFY(Ecran::cliquer(feuille, bEnregistrer));
    QCOMPARE(propose, QStringLiteral("Facture 2026-001 – Éditions Davrel.pdf"));
    QCOMPARE(retenu(), QString());

    QVERIFY(Ecran::taper(feuille, numero, QStringLiteral("2026-012")));
    const QString chemin = dossier.filePath(QStringLiteral("À envoyer.pdf"));
    Ecran::auDialogueSuivant([&](QDialog *dialogue) { Ecran::enregistrerSous(dialogue, chemin); });
    QVERIFY(Ecran::cliquer(feuille, bEnregistrer));
    QFile pdf(chemin);
    QVERIFY(pdf.open(QIODevice::ReadOnly) && pdf.readAll().startsWith("%PDF-"));
    QCOMPARE(retenu(), QStringLiteral("2026-012"));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Facture 2026-012 enregistrée.")));

    QVERIFY(Ecran::cliquer(feuille, fermer));
    feuille = ouvrir(bFacture);
    QCOMPARE(qobject_cast<QLineEdit *>(Ecran::controle(feuille, numero))->text(), QStringLiteral("2026-013"));
    QString rouvert;
    Ecran::auDialogueSuivant([&](QDialog *dialogue) {
        rouvert = qobject_cast<QFileDialog *>(dialogue)->directory().absolutePath();
        dialogue->reject();
    });
    QVERIFY(Ecran::cliquer(feuille, bEnregistrer));
    QCOMPARE(rouvert, QFileInfo(chemin).absolutePath());
}

void TestFeuilles::enregistrementManque_data()
{
    QTest::addColumn<bool>("disquePlein");
    QTest::addColumn<QString>("raison");
    QTest::newRow("disque plein") << true << QStringLiteral("le fichier dépasse la taille permise");
    QTest::newRow("un fichier à la place du dossier")
        << false << QStringLiteral("un fichier occupe la place d’un dossier");
}

void TestFeuilles::enregistrementManque()
{
    QFETCH(bool, disquePlein);
    QFETCH(QString, raison);
    const QTemporaryDir dossier;
    commander(QStringLiteral("suisse"));
    QDialog *feuille = ouvrir(bFacture);
    banc_->ecrireUtilisateur(QStringLiteral("obstacle"), "pas un dossier");
    const QString chemin = disquePlein ? dossier.filePath(QStringLiteral("facture.pdf"))
                                       : banc_->cheminUtilisateur(QStringLiteral("obstacle/facture.pdf"));
    std::optional<DisquePlein> plein;
    const QString message = messageApres(feuille, bEnregistrer, [&](QDialog *dialogue) {
        if (disquePlein)
            plein.emplace();
        Ecran::enregistrerSous(dialogue, chemin);
    });
    plein.reset();
    QCOMPARE(message, QDir::toNativeSeparators(chemin) + QStringLiteral(" : ") + raison);
    QVERIFY(QDir(dossier.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QCOMPARE(retenu(), QString());
}

// The file is there, but the preferences cannot be written: the seller is told.
void TestFeuilles::numeroSansTrace()
{
    const QTemporaryDir dossier;
    const Preferences sansPlace(banc_->cheminUtilisateur(QStringLiteral("obstacle/Quillet.ini")));
    banc_->ecrireUtilisateur(QStringLiteral("obstacle"), "pas un dossier");
    demarrer(sansPlace);
    commander(QStringLiteral("suisse"));
    QDialog *feuille = ouvrir(bFacture);
    const QString chemin = dossier.filePath(QStringLiteral("facture.pdf"));
    const QString message =
        messageApres(feuille, bEnregistrer, [&](QDialog *dialogue) { Ecran::enregistrerSous(dialogue, chemin); });
    QVERIFY2(
        message.startsWith(QStringLiteral("La facture 2026-001 est partie, mais son numéro n’a pas été retenu.\n")),
        qPrintable(message));
    QVERIFY(QFile::exists(chemin));
}

void TestFeuilles::impressionDansUnFichier()
{
    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("imprimee.pdf"));
    commander(QStringLiteral("suisse"));
    QDialog *feuille = ouvrir(bFacture);
    const QString imprimer = QStringLiteral("Imprimer 2 exemplaires");
    Ecran::auDialogueSuivant([](QDialog *dialogue) { dialogue->reject(); });
    QVERIFY(Ecran::cliquer(feuille, imprimer));
    QCOMPARE(retenu(), QString());

    int exemplaires = 0;
    Ecran::auDialogueSuivant([&](QDialog *dialogue) {
        exemplaires = dialogue->findChild<QSpinBox *>(QStringLiteral("copies"))->value();
        auto *imprimantes = dialogue->findChild<QComboBox *>(QStringLiteral("printers"));
        imprimantes->setCurrentIndex(imprimantes->count() - 1); // the file comes after the printers
        dialogue->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(chemin);
        dialogue->accept();
    });
    QVERIFY(Ecran::cliquer(feuille, imprimer));
    QCOMPARE(exemplaires, 2);
    QFile pdf(chemin);
    QVERIFY(pdf.open(QIODevice::ReadOnly) && pdf.readAll().startsWith("%PDF-"));
    QCOMPARE(retenu(), QStringLiteral("2026-001"));
}

void TestFeuilles::refusDeLaFile()
{
    QPrinter choix;
    try {
        FileImpression::envoyer("%PDF-", QStringLiteral("Facture.pdf"), choix);
        QFAIL("no server, and yet a job");
    } catch (const FileImpression::Refus &refus) {
        QVERIFY2(refus.texte().contains(QStringLiteral("le service d’impression ne répond pas")),
                 qPrintable(refus.texte()));
    }
}

void TestFeuilles::etatsDeLaFacture()
{
    const QString sansSiret =
        QStringLiteral("Numéro SIRET manquant : obligatoire sur la facture d’une micro-entreprise.");
    commander(QStringLiteral("suisse"));
    QDialog *feuille = ouvrir(bFacture);
    QVERIFY(!Ecran::montre(feuille, sansSiret));
    QVERIFY(Ecran::taper(feuille, numero, QStringLiteral("F12")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Ce numéro n’a pas la forme 2026-001 : il ne sera pas retenu.")));
    QVERIFY(Ecran::taper(feuille, numero, QStringLiteral("2062-001")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Ce numéro n’est pas de l’année 2026.")));
    app_->commande().setPoidsPese(Grammes{2001});
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Le port n’est pas encore connu : la facture apparaîtra avec lui.")));
    app_->commande().vider();
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Facture impossible")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Une facture par vendeur : séparez les livres de Davrel et ceux de "
                                                  "Mireva en deux commandes.")));
    QVERIFY(Ecran::cliquer(feuille, fermer));

    app_->commande().setVendeur(Vendeur::mireva);
    app_->commande().ajuster(banc_->livres[2], 1);
    app_->commande().setCodeDestination(QStringLiteral("suisse"));
    feuille = ouvrir(bFacture);
    const QString sansIdentite = QStringLiteral("Le nom et l’adresse de Mireva manquent dans les réglages.");
    QVERIFY(Ecran::montre(feuille, sansIdentite));
    QVERIFY(Ecran::cliquer(feuille, bDouane));
    QVERIFY(Ecran::montre(feuille, sansIdentite));

    banc_->reglages.vendeurs[QStringLiteral("davrel")].siret.reset();
    demarrer(banc_->preferences());
    commander(QStringLiteral("suisse"));
    QVERIFY(Ecran::montre(ouvrir(bFacture), sansSiret));
}

QTEST_MAIN(TestFeuilles)
#include "tst_feuilles.moc"
