#include "tests/BancCommande.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

using namespace Quillet;

// What stays in sight under the summary: price, next step, way back; and copying one text after the other.
class TestPiedCommande : public BancCommande
{
    Q_OBJECT

public slots:
    void ouvrir(const QUrl &) {} // as a browser would

private slots:
    // The foot, beside whatever place the panel was left at.
    void lePied()
    {
        const auto suivante = [this](const QString &etape) {
            return controle<QPushButton>(QStringLiteral("Étape suivante : ") + etape);
        };
        const QString lien = "Créer le lien dans PayPal";
        QVERIFY(suivante(lien) && suivante(lien)->isEnabled() && !suivante(lien)->isDefault());
        QCOMPARE(valeur("TOTAL"), "—");
        cliquer("Livre 1");
        QCOMPARE(valeur("TOTAL"), "20,49 €");
        QVERIFY(suivante(lien)->isDefault());
        QString message; // there is no browser
        QVERIFY(
            Dialogues::cliquerPuisRepondre(fenetre(), suivante(lien)->accessibleName(), {BancEcran::lire(message)}));
        QVERIFY(message.startsWith("Aucun navigateur"));
        QVERIFY(suivante(lien)); // still to be done
        QDesktopServices::setUrlHandler("https", this, "ouvrir");
        BancEcran::revenirA(fenetre()); // offscreen, no dialog gives the keys back
        QTest::keyClick(controle(colisPese), Qt::Key_Return, Qt::ControlModifier); // from wherever one types
        QDesktopServices::unsetUrlHandler("https");
        QVERIFY(suivante("E-mail en français"));
        const QWidget *prix = controle("Copier Prix"); // PayPal's page asks for the texts
        QCOMPARE(prix->visibleRegion().boundingRect(), prix->rect());
        cliquer("Anglais");
        QDialog *reponse = banc_->ouvrir(suivante("E-mail en anglais")->accessibleName());
        QCOMPARE(reponse->windowTitle(), "Réponse à l’acheteur");
        reponse->reject();
        cliquer("Livre 1");
        QVERIFY(suivante(lien));
    }

    void annulerLaReinitialisation()
    {
        cliquer("Livre 1");
        cliquer("Livre 1");
        taper(colisPese, "450");
        QVERIFY(Ecran::defiler(fenetre(), "E-mail en français"));
        const QScrollBar *ascenseur = panneau()->verticalScrollBar();
        QVERIFY(ascenseur->value() > 0);
        cliquer(reinitialiser);
        QCOMPARE(ascenseur->value(), 0);
        QVERIFY(montre("Commande vidée") && controle("Annuler")->hasFocus());
        QTest::keyClick(controle<QLineEdit>(colisPese), Qt::Key_Z, Qt::ControlModifier); // nothing typed there
        QCOMPARE(quantite(1), 2);
        QCOMPARE(controle<QLineEdit>(colisPese)->text(), "450");
        QVERIFY(!controle("Annuler"));

        cliquer(reinitialiser);
        cliquer("Annuler");
        QCOMPARE(quantite(1), 2);
        QVERIFY(controle(reinitialiser)->hasFocus());
        cliquer(reinitialiser);
        cliquer("Livre 1");
        QVERIFY(!montre("Commande vidée"));
        QTest::keyClick(fenetre(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(quantite(1), 1);
    }

    void copierALaSuite()
    {
        cliquer("Livre 1");
        const auto coches = [this] {
            const auto textes = fenetre()->findChildren<QLabel *>();
            return std::ranges::count_if(
                textes, [](const QLabel *texte) { return texte->isVisible() && texte->text() == "copié"; });
        };
        for (const char *texte : {"Éditions Davrel – 1 book", "", "20,49", "https://davrel.example/merci"}) {
            QTest::keyClick(fenetre(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
            QVERIFY(!*texte || QApplication::clipboard()->text() == QString::fromUtf8(texte));
        }
        QCOMPARE(coches(), 4);
        QVERIFY(montre("Copié : URL de redirection. Tout est copié."));
        cliquer("Copier le suivant");
        QCOMPARE(QApplication::clipboard()->text(), "Éditions Davrel – 1 book");
        cliquer("Livre 1"); // another order
        QCOMPARE(coches(), 0);
        cliquer("Copier Description");
        QCOMPARE(coches(), 1);
        cliquer("Anglais"); // another description
        QCOMPARE(coches(), 0);
    }
};

QTEST_MAIN(TestPiedCommande)
#include "tst_pied_commande.moc"
