#include "tests/BancEcran.h"
#include "tests/FausseMessagerie.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

using namespace Quillet;

// The reply, over the real window.
class TestVueReponse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }
    void init();
    void cleanup();

    void selonLaSaisie();
    void dansSaLangue();
    void impossible();
    void partDansLaMessagerie();
    void messagerieCassee();

private:
    FausseMessagerie messagerie_;
    std::unique_ptr<BancEcran> banc_;
};

namespace {

const QString enFrancais = QStringLiteral("E-mail en français");
const QString fermer = QStringLiteral("Fermer");
const QString champLien = QStringLiteral("Lien de paiement");
const QString champAdresse = QStringLiteral("E-mail de l’acheteur");
const QString ouvrirDansMail = QStringLiteral("Ouvrir dans Mail");

} // namespace

void TestVueReponse::init()
{
    banc_ = std::make_unique<BancEcran>();
    banc_->demarrer();
}

void TestVueReponse::cleanup()
{
    banc_.reset();
    messagerie_.oublier();
}

void TestVueReponse::selonLaSaisie()
{
    banc_->commander(QStringLiteral("france"));
    QDialog *feuille = banc_->ouvrir(enFrancais);
    const QString sansLien =
        QStringLiteral("Collez le lien de paiement : sinon le message garde « [lien] » à remplacer.");
    const QString refusee = QStringLiteral("Ce n’est pas une adresse seule : le message s’ouvrira sans destinataire.");
    const auto *message = feuille->findChild<QTextEdit *>();
    QVERIFY(Ecran::montre(feuille, sansLien));
    QVERIFY(!message->toPlainText().contains(QStringLiteral("À : ")));

    QVERIFY(Ecran::taper(feuille, champLien, QStringLiteral("https://lien.example/7")));
    QVERIFY(!Ecran::montre(feuille, sansLien));
    QVERIFY(Ecran::taper(feuille, champAdresse, QStringLiteral("ada@exemple.fr,b@c.fr")));
    QVERIFY(Ecran::montre(feuille, refusee));
    QVERIFY(Ecran::taper(feuille, champAdresse, QStringLiteral("ada@exemple.fr")));
    QVERIFY(!Ecran::montre(feuille, refusee));
    const QStringList lignes = lisible(message->toPlainText()).split(u'\n');
    QCOMPARE(lignes.mid(0, 3), (QStringList{QStringLiteral("Votre commande de livres – davrel.example"),
                                            QStringLiteral("À : ada@exemple.fr"), QStringLiteral("Bonjour,")}));
    QVERIFY(lignes.contains(QStringLiteral("Pour régler, ouvrez ce lien : https://lien.example/7")));
    const QTextCursor total = message->document()->find(QStringLiteral("Total à payer"));
    QVERIFY(total.charFormat().fontWeight() > QFont::Normal);
    QVERIFY(message->document()->find(QStringLiteral("Pour régler")).charFormat().fontWeight() == QFont::Normal);

    // Return is for the message, wherever the focus has been.
    auto *envoyer = qobject_cast<QPushButton *>(Ecran::controle(feuille, ouvrirDansMail));
    envoyer->setFocus();
    auto *lien = qobject_cast<QLineEdit *>(Ecran::controle(feuille, champLien));
    lien->setFocus();
    QVERIFY(envoyer->isDefault());
    QApplication::clipboard()->setText(QStringLiteral("https://lien\r\n.example/8\n"));
    lien->selectAll();
    lien->paste();
    QCOMPARE(lien->text(), QStringLiteral("https://lien.example/8"));

    QTest::keyClick(feuille, Qt::Key_Escape);
    QTRY_VERIFY(!Dialogues::devant());
    feuille = banc_->ouvrir(enFrancais);
    QVERIFY(Ecran::montre(feuille, sansLien)); // nothing typed outlives the sheet
}

void TestVueReponse::dansSaLangue()
{
    banc_->commander(QStringLiteral("suisse"));
    QDialog *feuille = banc_->ouvrir(QStringLiteral("E-mail en anglais"));
    QVERIFY(qobject_cast<QAbstractButton *>(Ecran::controle(feuille, QStringLiteral("Anglais")))->isChecked());
    QVERIFY(Ecran::montre(
        feuille, QStringLiteral("Collez le lien de paiement : sinon le message garde « [link] » à remplacer.")));
    QVERIFY(Ecran::cliquer(feuille, QStringLiteral("Français")));
    QVERIFY(Ecran::montre(
        feuille, QStringLiteral("Collez le lien de paiement : sinon le message garde « [lien] » à remplacer.")));
    QVERIFY(feuille->findChild<QTextEdit *>()->toPlainText().contains(QStringLiteral("Bonjour,")));
    QVERIFY(Ecran::cliquer(feuille, fermer));
    QVERIFY(Ecran::controle(&banc_->app->fenetre(), enFrancais));
}

void TestVueReponse::impossible()
{
    banc_->app->commande().setVendeur(Vendeur::mireva); // whose identity is not in the settings
    banc_->app->commande().ajuster(banc_->donnees.livres[2], 1);
    QDialog *feuille = banc_->ouvrir(enFrancais);
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Réponse impossible")));
    QVERIFY(Ecran::montre(feuille,
                          QStringLiteral("Une réponse par vendeur : séparez les livres de Davrel et ceux de Mireva.")));
    QVERIFY(!Ecran::controle(feuille, ouvrirDansMail));
    QVERIFY(!Ecran::controle(feuille, QStringLiteral("Français")));
    QCOMPARE(feuille->size(), QSize(420, 260));
    for (const QLabel *texte : feuille->findChildren<QLabel *>())
        QVERIFY2(!texte->isVisible() || texte->height() >= texte->heightForWidth(texte->width()),
                 qPrintable(texte->text())); // not cut
}

// Return in a field sends what the sheet shows; the sheet stays.
void TestVueReponse::partDansLaMessagerie()
{
    messagerie_.installer(QStringLiteral("thunderbird.desktop"));
    banc_->commander(QStringLiteral("france"));
    QDialog *feuille = banc_->ouvrir(enFrancais);
    QVERIFY(Ecran::taper(feuille, champLien, QStringLiteral("https://lien.example/7")));
    QVERIFY(Ecran::taper(feuille, champAdresse, QStringLiteral(" ada@exemple.fr")));
    QTest::keyClick(Ecran::controle(feuille, champAdresse), Qt::Key_Return);
    const QStringList recus = messagerie_.recus();
    QCOMPARE(recus.size(), 2);
    const auto champs = champsDeThunderbird(recus[1]);
    QCOMPARE(champs[0].second, QStringLiteral("ada@exemple.fr"));
    QCOMPARE(champs[1].second, QStringLiteral("Votre commande de livres – davrel.example"));
    const QString corps = lisible(champs[3].second);
    QVERIFY2(corps.contains(QStringLiteral("<br><b>Total à payer (livres + envoi) : 37,59 €</b><br><br>Pour régler, "
                                           "ouvrez ce lien : https://lien.example/7<br>")),
             qPrintable(corps));
    QCOMPARE(Dialogues::devant(), feuille);
}

void TestVueReponse::messagerieCassee()
{
    messagerie_.installerCassee(QStringLiteral("thunderbird.desktop"));
    banc_->commander(QStringLiteral("france"));
    QString message;
    QVERIFY(Dialogues::cliquerPuisRepondre(banc_->ouvrir(enFrancais), ouvrirDansMail, {[&](QDialog *boite) {
                                               message = qobject_cast<QMessageBox *>(boite)->text();
                                               boite->reject();
                                           }}));
    QCOMPARE(message, QStringLiteral("Messagerie ne s’est pas ouvert."));
}

QTEST_MAIN(TestVueReponse)
#include "tst_vue_reponse.moc"
