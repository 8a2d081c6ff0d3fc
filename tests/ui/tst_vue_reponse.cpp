#include "tests/BancEcran.h"
#include "tests/FausseMessagerie.h"
#include "tests/FauxPortail.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>

using namespace Quillet;

namespace {

const QString enFrancais = "E-mail en français";
const QString fermer = "Fermer";
const QString champLien = "Lien de paiement";
const QString champAdresse = "E-mail de l’acheteur";
const QString ouvrirDansMail = "Ouvrir dans Mail";

} // namespace

// The reply, over the real window.
class TestVueReponse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        banc_->demarrer();
    }

    void cleanup()
    {
        banc_.reset();
        messagerie_.oublier();
    }

    void selonLaSaisie()
    {
        banc_->commander("france");
        QDialog *feuille = banc_->ouvrir(enFrancais);
        const QString sansLien = "Collez le lien de paiement : sinon le message garde « [lien] » à remplacer.";
        const QString refusee = "Ce n’est pas une adresse seule : le message s’ouvrira sans destinataire.";
        const QString douteux = "Ce lien mène à lien.example, pas à PayPal : vérifiez-le avant d’envoyer le message.";
        const auto *message = feuille->findChild<QTextEdit *>();
        QVERIFY(Ecran::montre(feuille, sansLien));
        QVERIFY(!Ecran::montre(feuille, douteux));
        QVERIFY(!message->toPlainText().contains("À : "));

        QVERIFY(Ecran::taper(feuille, champLien, "https://lien.example/7"));
        QVERIFY(!Ecran::montre(feuille, sansLien));
        QVERIFY(Ecran::montre(feuille, douteux));
        QVERIFY(Ecran::taper(feuille, champAdresse, "ada@exemple.fr,b@c.fr"));
        QVERIFY(Ecran::montre(feuille, refusee));
        QVERIFY(message->toPlainText().contains("À : —\n"));
        QVERIFY(Ecran::taper(feuille, champAdresse, "Ada <ada@exemple.org>"));
        QVERIFY(message->toPlainText().contains("À : ada@exemple.org\n"));
        QVERIFY(Ecran::taper(feuille, champAdresse, "ada@exemple.fr"));
        QVERIFY(!Ecran::montre(feuille, refusee));
        const QStringList lignes = lisible(message->toPlainText()).split(u'\n');
        QCOMPARE(lignes.mid(0, 3),
                 (QStringList{"Votre commande de livres – davrel.example", "À : ada@exemple.fr", "Bonjour,"}));
        QVERIFY(lignes.contains("Pour régler, ouvrez ce lien : https://lien.example/7"));
        const QTextCursor total = message->document()->find("Total à payer");
        QVERIFY(total.charFormat().fontWeight() > QFont::Normal);
        QVERIFY(message->document()->find("Pour régler").charFormat().fontWeight() == QFont::Normal);

        // Return is for the message, wherever the focus has been.
        auto *envoyer = qobject_cast<QPushButton *>(Ecran::controle(feuille, ouvrirDansMail));
        envoyer->setFocus();
        auto *lien = qobject_cast<QLineEdit *>(Ecran::controle(feuille, champLien));
        lien->setFocus();
        QVERIFY(envoyer->isDefault());
        QApplication::clipboard()->setText("https://lien\r\n.example/8\n");
        lien->selectAll();
        lien->paste();
        QCOMPARE(lien->text(), "https://lien.example/8");

        BancEcran::revenirA(feuille);          // from PayPal's page
        QTest::keyClick(lien, Qt::Key_Escape); // leaves what was typed
        QCOMPARE(Dialogues::devant(), feuille);
        QTest::keyClick(feuille->focusWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!Dialogues::devant());
        feuille = banc_->ouvrir(enFrancais);
        QVERIFY(Ecran::montre(feuille, sansLien)); // nothing typed outlives the sheet
    }

    void dansSaLangue()
    {
        banc_->commander("suisse");
        QDialog *feuille = banc_->ouvrir("E-mail en anglais");
        QVERIFY(qobject_cast<QAbstractButton *>(Ecran::controle(feuille, "Anglais"))->isChecked());
        QVERIFY(Ecran::montre(feuille, "Collez le lien de paiement : sinon le message garde « [link] » à remplacer."));
        QVERIFY(Ecran::cliquer(feuille, "Français"));
        QVERIFY(Ecran::montre(feuille, "Collez le lien de paiement : sinon le message garde « [lien] » à remplacer."));
        QVERIFY(feuille->findChild<QTextEdit *>()->toPlainText().contains("Bonjour,"));
        QVERIFY(Ecran::cliquer(feuille, fermer));
        QVERIFY(Ecran::controle(&banc_->app->fenetre(), enFrancais));
    }

    void impossible()
    {
        banc_->app->commande().setVendeur(Vendeur::mireva); // whose identity is not in the settings
        banc_->app->commande().ajuster(banc_->donnees.livres[2], 1);
        QDialog *feuille = banc_->ouvrir(enFrancais);
        QVERIFY(Ecran::montre(feuille, "Réponse impossible"));
        QVERIFY(Ecran::montre(feuille, "Une réponse par vendeur : séparez les livres de Davrel et ceux de Mireva."));
        QVERIFY(!Ecran::controle(feuille, ouvrirDansMail));
        QVERIFY(!Ecran::controle(feuille, "Français"));
        QCOMPARE(feuille->size(), QSize(420, 260));
        for (const QLabel *texte : feuille->findChildren<QLabel *>())
            QVERIFY2(!texte->isVisible() || texte->height() >= texte->heightForWidth(texte->width()),
                     qPrintable(texte->text())); // not cut
    }

    // Return in a field sends what the sheet shows; the sheet stays.
    void partDansLaMessagerie()
    {
        messagerie_.installer("thunderbird.desktop");
        banc_->commander("france");
        QDialog *feuille = banc_->ouvrir(enFrancais);
        QVERIFY(Ecran::taper(feuille, champLien, "https://lien.example/7"));
        QVERIFY(Ecran::taper(feuille, champAdresse, "Ada <ada@exemple.fr>"));
        QTest::keyClick(Ecran::controle(feuille, champAdresse), Qt::Key_Return);
        const QStringList recus = messagerie_.recus();
        QCOMPARE(recus.size(), 2);
        QVERIFY(Ecran::controle(&banc_->app->fenetre(), "Étape suivante : Facture"));
        const auto champs = champsDeThunderbird(recus[1]);
        QCOMPARE(champs[0].second, "ada@exemple.fr");
        QCOMPARE(champs[1].second, "Votre commande de livres – davrel.example");
        const QString corps = lisible(champs[3].second);
        QVERIFY2(corps.contains("<br><b>Total à payer (livres + envoi) : 37,59 €</b><br><br>Pour régler, "
                                "ouvrez ce lien : https://lien.example/7<br>"),
                 qPrintable(corps));
        QCOMPARE(Dialogues::devant(), feuille);
        QTest::keyClick(feuille->focusWidget(), Qt::Key_Escape); // what was typed has left: nothing to save
        QTRY_VERIFY(!Dialogues::devant());
    }

    void messagerieCassee()
    {
        messagerie_.installerCassee("thunderbird.desktop");
        banc_->commander("france");
        QString message;
        QVERIFY(Dialogues::cliquerPuisRepondre(banc_->ouvrir(enFrancais), ouvrirDansMail, {BancEcran::lire(message)}));
        QCOMPARE(message, "Messagerie ne s’est pas ouvert.");
    }

    // What the desktop answers later finds the window, were the sheet closed.
    void messagerieAbsenteDuBus()
    {
        messagerie_.installerSurLeBus("org.exemple.Absente.desktop");
        banc_->commander("france");
        QDialog *feuille = banc_->ouvrir(enFrancais);
        QVERIFY(Ecran::cliquer(feuille, ouvrirDansMail));
        QTest::keyClick(feuille, Qt::Key_Escape);
        QTRY_VERIFY(qobject_cast<QMessageBox *>(Dialogues::devant()));
        QCOMPARE(qobject_cast<QMessageBox *>(Dialogues::devant())->text(), "Messagerie ne s’est pas ouvert.");
        Dialogues::devant()->reject();
    }

private:
    BusPrive bus_;
    FausseMessagerie messagerie_;
    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestVueReponse)
#include "tst_vue_reponse.moc"
