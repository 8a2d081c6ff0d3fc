#include "composants/Icone.h"
#include "tests/BancCommande.h"
#include "ui/ContenuPrincipal.h"
#include "ui/commande/CarteLivre.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/GrilleLivres.h"
#include "ui/commande/TransitionCartes.h"

#include <QAbstractAnimation>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>

using namespace Quillet;

// The real window, worked by clicks and keys.
class TestVueCommande : public BancCommande
{
    Q_OBJECT

private slots:
    void cliquerUneCouverture()
    {
        QVERIFY(!controle<QAbstractButton>(reinitialiser)->isEnabled());
        auto *moins = controle<QAbstractButton>("Retirer un exemplaire");
        QVERIFY(!moins->isEnabled());
        cliquer("Livre 1");
        cliquer("Livre 1");
        QCOMPARE(quantite(1), 2);
        QCOMPARE(valeur("Livre 1"), "30,00 €");
        QCOMPARE(valeur("Sous-total"), "30,00 €");
        QCOMPARE(valeur("TOTAL À PAYER"), "37,59 €");
        QCOMPARE(valeur("Frais PayPal"), "-1,44 €");
        QCOMPARE(valeur("Il vous reste"), "28,56 €");
        QVERIFY(montre("2 livres · 440 g"));
        cliquer("Livre 4"); // sold out
        QCOMPARE(quantite(4), 0);
        moins->click();
        moins->click();
        QVERIFY(!moins->isEnabled());
        QVERIFY(montre("Aucun livre"));
        cliquer("Ajouter un exemplaire");
        QCOMPARE(quantite(1), 1);
    }

    // Wherever the cards go under it, and whatever comes over them.
    void seSouleveCeQuiEstSousLePointeur()
    {
        for (int id = 6; id < 12; ++id)
            banc_->donnees.livres.append(unLivre(id, Vendeur::davrel, Centimes{1200}, Grammes{180}));
        banc_->demarrer();
        fenetre()->resize(fenetre()->minimumSizeHint());
        auto *grille = fenetre()->findChild<GrilleLivres *>();
        const auto cartes = grille->findChildren<CarteLivre *>();
        auto *ascenseur = defilement(grille)->verticalScrollBar();
        const int course = cartes[4]->y() - cartes[0]->y(); // the one between is sold out
        QTRY_VERIFY(ascenseur->maximum() >= course);
        const QPoint place = cartes[0]->mapTo(fenetre(), cartes[0]->rect().center());
        const QPoint ailleurs(10, fenetre()->height() - 10);

        QTest::mouseMove(fenetre(), place);
        QTRY_COMPARE(souleves(), cartes[0]->livre().titre);
        ascenseur->setValue(course); // as the wheel or Tab does
        QTRY_COMPARE(souleves(), cartes[4]->livre().titre);
        QTest::mouseMove(fenetre(), ailleurs);
        QTRY_COMPARE(souleves(), "");

        const int rangee = grille->mapTo(fenetre(), QPoint()).x() + 1;
        QTest::mouseMove(fenetre(), {rangee, place.y()}); // beside the cards
        ascenseur->setValue(0);
        QTest::mouseMove(fenetre(), place);
        QTRY_COMPARE(souleves(), cartes[0]->livre().titre);
        fenetre()->resize(fenetre()->size() + QSize(0, 40));
        QTRY_COMPARE(souleves(), cartes[0]->livre().titre);

        QMenu menu;
        menu.addAction("Une entrée");
        menu.popup(fenetre()->mapToGlobal(ailleurs));
        QTRY_COMPARE(souleves(), "");
        menu.close();
        QTRY_COMPARE(souleves(), cartes[0]->livre().titre);
        QDialog feuille(fenetre());
        feuille.open();
        QTRY_COMPARE(souleves(), "");
        feuille.reject();
        QTest::mouseMove(fenetre(), place + QPoint(1, 1));
        QTRY_COMPARE(souleves(), cartes[0]->livre().titre);
        fenetre()->hide();
        QTRY_COMPARE(souleves(), "");
    }

    void autrePoids()
    {
        const QString champ = "Poids de l’emballage, en grammes";
        QVERIFY(!controle(champ));
        choisir("Emballage", "Autre poids");
        QCOMPARE(controle<QLineEdit>(champ)->text(), "100");
        taper(champ, "75");
        QCOMPARE(bon().poidsEmballageLibre, Grammes{75});
        QCOMPARE(valeur("Poids calculé"), "75 g");
        auto *saisi = controle<QLineEdit>(champ);
        QTest::keyClick(saisi, Qt::Key_Backspace);
        QTest::keyClick(saisi, Qt::Key_Backspace);
        QTest::keyClicks(saisi, "90");
        QCOMPARE(saisi->text(), "90"); // no zero slipped in while the field was empty
        choisir("Emballage", "Carton (180 g)");
        QVERIFY(!controle(champ));
        QCOMPARE(valeur("Poids calculé"), "180 g");
    }

    void changerDeDestination()
    {
        cliquer("Livre 1");
        choisir("Envoi vers", "Union européenne");
        QCOMPARE(valeur("Déclaration en douane"), "Non");
        cliquer("Colis pour les Canaries & Ceuta");
        QVERIFY(montre("Colis pour les Canaries && Ceuta")); // painted &
        QCOMPARE(valeur("Déclaration en douane"), "Oui, CN23");
        auto *pays = controle<QLineEdit>("Pays de livraison");
        QApplication::clipboard()->setText("Sp\r\nain\n"); // as a page gives it
        pays->paste();
        QCOMPARE(pays->text(), "Spain");
        QCOMPARE(bon().paysLivraison, "Spain");
        cliquer("Français");
        QVERIFY(bon().langue == Langue::francais);

        choisir("Envoi vers", "Suisse");
        QVERIFY(!bon().horsUE && !bon().langue);
        QCOMPARE(controle<QLineEdit>("Pays de livraison")->text(), QString());
        QVERIFY(controle<QAbstractButton>("Anglais")->isChecked());
        QVERIFY(!controle("Colis pour les Canaries & Ceuta"));
    }

    void peserLeColis()
    {
        cliquer("Livre 2"); // never weighed
        QVERIFY(montre("Livre 2 n’a pas encore été pesé : pesez le colis."));
        QCOMPARE(valeur("TOTAL À PAYER"), "—");
        taper(colisPese, "501");
        QCOMPARE(valeur("Palier Colissimo"), "jusqu’à 2 kg");
        QCOMPARE(valeur("TOTAL À PAYER"), "33,19 €");
        auto *champ = controle<QLineEdit>(colisPese);
        champ->selectAll();
        QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(champ, &menu);
        QVERIFY(champ->hasSelectedText()); // what its menu would copy
        QTest::keyClick(champ, Qt::Key_Delete);
        QVERIFY(!bon().poidsPese);
        QCOMPARE(valeur("TOTAL À PAYER"), "—");
        taper(colisPese, "-4a5,0"); // keys that make no sense have no effect
        QCOMPARE(bon().poidsPese, Grammes{450});
        taper(colisPese, "9999999");
        QCOMPARE(bon().poidsPese, Grammes{999999});
    }

    void toutReinitialiser()
    {
        cliquer("Livre 1");
        choisir("Emballage", "Carton (180 g)");
        choisir("Envoi vers", "Suisse");
        taper(colisPese, "450");
        taper("Pays de livraison", "Switzerland");
        cliquer(reinitialiser);
        QVERIFY(bon().estVide() && !bon().poidsPese && bon().paysLivraison.isEmpty());
        QCOMPARE(controle<QLineEdit>(colisPese)->text(), QString());
        QCOMPARE(controle<QComboBox>("Emballage")->currentText(), "Carton (180 g)");
        QCOMPARE(controle<QComboBox>("Envoi vers")->currentText(), "Suisse");
        QVERIFY(!controle<QAbstractButton>(reinitialiser)->isEnabled());
    }

    void changerDeVendeur()
    {
        cliquer("Livre 1");
        cliquer("Mireva"); // no identity: its short name
        QVERIFY(!controle("Livre 1"));
        QVERIFY(montre("Aucun livre"));
        QVERIFY(controle<QAbstractButton>(reinitialiser)->isEnabled());
        cliquer("Livre 3");
        QCOMPARE(quantite(3), 1);
        cliquer("davrel.example");
        QCOMPARE(quantite(1), 1);
        QCOMPARE(valeur("Sous-total"), "15,00 €");

        const char *sansLivre = "Le catalogue n’a pas de livre de ce vendeur.";
        QVERIFY(!montre(sansLivre));
        banc_->donnees.livres.removeIf([](const Livre &livre) { return livre.vendeur == Vendeur::mireva; });
        banc_->demarrer();
        cliquer("Mireva");
        QVERIFY(montre(sansLivre));
    }

    // The second change comes while the first is still moving: one motion only, and nothing of it stays.
    void changerDeVendeurCoupSurCoup()
    {
        const auto transitions = [&] { return fenetre()->findChildren<TransitionCartes *>(); };
        cliquer("Mireva");
        const QPointer premiere = transitions().value(0);
        auto *mouvement = premiere ? premiere->findChild<QAbstractAnimation *>() : nullptr;
        QVERIFY(mouvement);
        mouvement->setCurrentTime(100);
        cliquer("davrel.example");
        QVERIFY(!premiere && transitions().size() == 1);
        cliquer("Livre 1");
        QCOMPARE(transitions().size(), 0);
        cliquer("Mireva");
        QTRY_VERIFY(transitions().isEmpty());
    }

    void copierUnChamp()
    {
        cliquer("Livre 1");
        const QImage coche = Icone::icone("checkmark.circle.fill").pixmap(16).toImage();
        const auto copie = [&](const QString &titre) {
            return controle<QAbstractButton>(QStringLiteral("Copier ") + titre)->icon().pixmap(16).toImage() == coche;
        };
        const auto reste = [&](const QString &titre) { // ms that its check mark still shows
            return controle(QStringLiteral("Copier ") + titre)->findChild<QTimer *>()->remainingTime();
        };
        QVERIFY(!copie("Prix"));
        QCOMPARE(lisible(controle("Copier Prix")->accessibleDescription()), "20,49 €");
        cliquer("Copier Prix");
        QCOMPARE(QApplication::clipboard()->text(), "20,49");
        QVERIFY(copie("Prix"));
        QTRY_VERIFY(reste("Prix") < 1400);
        cliquer("Copier Nom de l’objet");
        QCOMPARE(QApplication::clipboard()->text(), "Éditions Davrel – 1 book");
        QVERIFY(copie("Nom de l’objet"));
        QVERIFY(reste("Prix") < 1400); // each for its own time
        QTRY_VERIFY(!copie("Prix"));
        QTRY_VERIFY(!copie("Nom de l’objet"));
    }

    void documentsEtReponse()
    {
        const auto actif = [this](const char *bouton) { return controle<QAbstractButton>(bouton)->isEnabled(); };
        QVERIFY(!actif("Facture") && !actif("E-mail en français"));
        cliquer("Livre 1");
        choisir("Envoi vers", "Union européenne");
        QVERIFY(actif("Facture") && actif("Déclaration en douane") && actif("E-mail en anglais"));
        cliquer("Français");
        QVERIFY(actif("E-mail en français"));
        taper("Colis pesé, en grammes", "2001"); // beyond the last tier
        QVERIFY(!actif("Facture") && !actif("E-mail en français"));
    }

    // What a screen reader does without a click or a key counts as much.
    void parUnLecteurDEcran()
    {
        cliquer("Livre 1");
        auto *envoi = controle<QComboBox>("Envoi vers");
        envoi->showPopup();
        const QModelIndex suisse = envoi->model()->index(envoi->findText("Suisse"), 0);
        envoi->view()->selectionModel()->select(suisse, QItemSelectionModel::ClearAndSelect);
        QTRY_COMPARE(bon().codeDestination, vers("suisse"));

        for (const char *texte : {"501", "abc"}) {
            controle<QLineEdit>(colisPese)->setText(texte);
            QCOMPARE(bon().poidsPese, Grammes{501});
        }
        controle<QLineEdit>("Pays de livraison")->setText("Switzerland");
        QCOMPARE(bon().paysLivraison, "Switzerland");

        auto *francais = controle<QAbstractButton>("Français");
        QVERIFY(!(francais->focusPolicy() & Qt::TabFocus)); // Tab leads to the language shown
        francais->toggle();
        QVERIFY(bon().langue == Langue::francais && (francais->focusPolicy() & Qt::TabFocus));
    }

    void sansRubriqueLaCommande()
    {
        ContenuPrincipal *contenu = fenetre()->contenu();
        contenu->montrer(Rubrique::livres);
        contenu->findChild<QListWidget *>()->clearSelection();
        QVERIFY(!contenu->rubrique());
        QVERIFY(controle(reinitialiser));
    }

private:
    [[nodiscard]] QString souleves() const
    {
        QStringList titres;
        for (const auto *carte : fenetre()->findChildren<CarteLivre *>())
            if (carte->findChild<Couverture *>()->soulevee())
                titres.append(carte->livre().titre);
        return titres.join(u'+');
    }
};

QTEST_MAIN(TestVueCommande)
#include "tst_vue_commande.moc"
