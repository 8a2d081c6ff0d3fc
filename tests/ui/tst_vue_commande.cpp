#include "composants/Icone.h"
#include "tests/BancEcran.h"
#include "tests/Rangees.h"
#include "ui/ContenuPrincipal.h"
#include "ui/commande/CarteLivre.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/GrilleLivres.h"
#include "ui/commande/ParcoursDeLaGrille.h"
#include "ui/commande/TransitionCartes.h"

#include <QAbstractAnimation>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace Quillet;

namespace {

const QString colisPese = "Colis pesé, en grammes";
const QString reinitialiser = "Tout réinitialiser";

} // namespace

// The real window, worked by clicks and keys.
class TestVueCommande : public QObject
{
    Q_OBJECT

public slots:
    void ouvrir(const QUrl &) {} // as a browser would

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        banc_->donnees.livres.append(
            unLivre(5, Vendeur::davrel, Centimes{1200}, Grammes{180})); // after the one sold out
        banc_->demarrer();
    }

    void cleanup() { banc_.reset(); }

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
        suivante(lien)->click();
        QDesktopServices::unsetUrlHandler("https");
        QVERIFY(suivante("E-mail en français"));
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
        cliquer(reinitialiser);
        QTest::keyClick(fenetre(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier); // nothing to copy
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

    void laMoletteNeChangeRien()
    {
        for (const char *nom : {"Emballage", "Envoi vers"}) {
            auto *choix = controle<QComboBox>(nom);
            QVERIFY(
                !(choix->focusPolicy() & ~Qt::StrongFocus)); // a wheel that takes the focus takes the next letters too
            const int avant = choix->currentIndex();
            QWheelEvent cran(QPointF(5, 5), choix->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(choix, &cran);
            QCOMPARE(choix->currentIndex(), avant);
        }
    }

    // Tab alone reaches every control in the order in which they are read, and Space adds a copy.
    void auClavier()
    {
        cliquer("Mireva");
        cliquer("davrel.example"); // the cards are new ones: they must keep their place
        fenetre()->contenu()->findChild<QListWidget *>()->setFocus();
        QStringList atteints;
        for (int i = 0; i < 50; ++i) {
            QTest::keyClick(fenetre()->focusWidget() ? fenetre()->focusWidget() : fenetre(), Qt::Key_Tab);
            QWidget *atteint = QApplication::focusWidget();
            const auto *bouton = qobject_cast<QAbstractButton *>(atteint);
            const QString nom =
                bouton && atteint->accessibleName().isEmpty() ? bouton->text() : atteint->accessibleName();
            QVERIFY2(!nom.isEmpty(), atteint->metaObject()->className());
            atteints.append(nom.section(u',', 0, 0));
            if (atteints.last() == u"Livre 1" && quantite(1) == 0)
                QTest::keyClick(atteint, Qt::Key_Space);
        }
        QCOMPARE(quantite(1), 1);
        qsizetype precedent = -1;
        for (const char *nom : {"Tout réinitialiser", "davrel.example", "Livre 1", "Emballage", "Colis pesé",
                                "Envoi vers", "Français", "Créer le lien dans PayPal", "Pays de livraison",
                                "Copier Prix", "Copier URL de redirection", "Copier le suivant", "Facture",
                                "E-mail en français", "Étape suivante : Créer le lien dans PayPal", "Rubriques"}) {
            const qsizetype rang = atteints.indexOf(nom, precedent + 1);
            QVERIFY2(rang > precedent,
                     qPrintable(QString::fromUtf8(nom) + QStringLiteral(" / ") + atteints.join(u'|')));
            precedent = rang;
        }
        QVERIFY(!atteints.contains("Livre 2")); // the covers are one stop
    }

    // Eleven covers, four in a row.
    void flechesDansLaGrille()
    {
        using ParcoursDeLaGrille::versOu;
        for (const auto &[nom, touche, rang, ou] : Rangees<Qt::Key, int, int>{
                 {"à droite, au rang suivant", Qt::Key_Right, 3, 4},
                 {"à droite, fin", Qt::Key_Right, 10, 10},
                 {"à gauche, au rang d’avant", Qt::Key_Left, 4, 3},
                 {"à gauche, début", Qt::Key_Left, 0, 0},
                 {"en bas", Qt::Key_Down, 2, 6},
                 {"en bas, sous un trou", Qt::Key_Down, 7, 10},
                 {"en bas, dernier rang", Qt::Key_Down, 9, 9},
                 {"en haut", Qt::Key_Up, 10, 6},
                 {"en haut, premier rang", Qt::Key_Up, 3, 3},
                 {"début", Qt::Key_Home, 6, 0},
                 {"fin", Qt::Key_End, 6, 10},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(versOu(touche, rang, 11, 4), std::optional(ou));
        }
        QVERIFY(!versOu(Qt::Key_A, 0, 11, 4));
    }

    void lettresEtChiffresDansLaGrille()
    {
        const QStringList titres{"Le Phare de sel", "L’Herbier des heures", "Les Marées", "Œuvres, été 1999"};
        for (const auto &[lettres, rang, trouve] : Rangees<int, int>{
                 {"l", 0, 1}, // a letter alone goes on
                 {"l", 2, 0},
                 {"ll", 0, 1},
                 {"les", 2, 2}, // more stays
                 {"her", 0, 1},
                 {"mare", 0, 2},
                 {"ÉT", 0, 3},
                 {"oeu", 0, 3},
                 {"are", 0, -1}, // not within a word
                 {"lm", 0, -1},
             }) {
            const Rangee rangee(lettres);
            QCOMPARE(ParcoursDeLaGrille::titre(titres, lettres, rang).value_or(-1), trouve);
        }
        for (const auto &[nom, commence, chiffre, nombre] : Rangees<std::optional<int>, int, int>{
                 {"4", {}, 4, 4}, {"12", 1, 2, 12}, {"05", 0, 5, 5}, {"123", 12, 3, 3}}) {
            const Rangee rangee(nom);
            QCOMPARE(ParcoursDeLaGrille::nombre(commence, chiffre), nombre);
        }
    }

    // One stop of the Tab key, where arrows and letters walk and digits count.
    void lesCouverturesAuClavier()
    {
        const auto ici = [] { return QApplication::focusWidget()->accessibleName().section(u',', 0, 0); };
        const auto presser = [](int touche, const QString &texte = {}) {
            QKeyEvent appui(QEvent::KeyPress, touche, Qt::NoModifier, texte);
            QApplication::sendEvent(QApplication::focusWidget(), &appui);
        };
        controle("Livre 1")->setFocus();
        presser(Qt::Key_1, "1");
        presser(Qt::Key_2, "2");
        QCOMPARE(quantite(1), 12);
        QVERIFY(QApplication::focusWidget()->accessibleName().endsWith(", 12 dans la commande"));
        presser(Qt::Key_Minus, "-");
        QCOMPARE(quantite(1), 11);
        presser(Qt::Key_Right);
        QCOMPARE(ici(), "Livre 2");
        QVERIFY(fenetre()->testAttribute(Qt::WA_KeyboardFocusChange)); // its ring shows
        presser(Qt::Key_3, "3");                                       // another book, another number
        presser(Qt::Key_Plus, "+");
        presser(Qt::Key_Return);
        QCOMPARE(quantite(2), 5);
        presser(Qt::Key_Delete);
        QCOMPARE(quantite(2), 0);
        presser(Qt::Key_Right);
        QCOMPARE(ici(), "Livre 4"); // sold out
        presser(Qt::Key_3, "3");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(quantite(4), 0);
        presser(Qt::Key_L, "l");
        QCOMPARE(ici(), "Livre 5");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(ici(), "Livre 5");
        cliquer("Mireva"); // the cards go, the focus with them
        QVERIFY(controle("Livre 3")->focusPolicy() & Qt::TabFocus);
    }

    // From part to part, and straight to what is done with every order.
    void touchesDeLaCommande()
    {
        const auto presser = [&](Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) {
            QTest::keyClick(fenetre(), touche, avec);
            return QApplication::focusWidget()->accessibleName().section(u',', 0, 0);
        };
        fenetre()->contenu()->findChild<QListWidget *>()->setFocus();
        QCOMPARE(presser(Qt::Key_F6), "Livre 1");
        QCOMPARE(presser(Qt::Key_F6), "Emballage");
        controle(colisPese)->setFocus();
        QCOMPARE(presser(Qt::Key_F6), "Étape suivante : Créer le lien dans PayPal");
        QCOMPARE(presser(Qt::Key_F6), "Rubriques");
        presser(Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(presser(Qt::Key_F6, Qt::ShiftModifier), colisPese.section(u',', 0, 0)); // where one was
        controle("davrel.example")->setFocus();                                          // in the books' part too
        QCOMPARE(presser(Qt::Key_F6), colisPese.section(u',', 0, 0));

        presser(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(!QApplication::activeModalWidget()); // nothing to reply yet
        cliquer("Livre 1");
        controle("Pays de livraison")->setFocus();
        presser(Qt::Key_E, Qt::ControlModifier);
        auto *reponse = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(reponse);
        reponse->reject();
        presser(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(bon().estVide());
        QVERIFY(controle(reinitialiser)->toolTip().endsWith("la destination restent")); // as it is worded
        QVERIFY(controle("E-mail en français")->toolTip().endsWith(" (Ctrl+E)"));
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
    [[nodiscard]] Fenetre *fenetre() const { return &banc_->app->fenetre(); }
    [[nodiscard]] const BonDeCommande &bon() const { return banc_->app->commande().bon(); }
    template <typename Controle = QWidget>
    [[nodiscard]] Controle *controle(const QString &nom) const
    {
        return qobject_cast<Controle *>(Ecran::controle(fenetre(), nom));
    }
    [[nodiscard]] QScrollArea *panneau() const // that holds the sections of the summary
    {
        QWidget *parent = controle(colisPese);
        while (!qobject_cast<QScrollArea *>(parent))
            parent = parent->parentWidget();
        return qobject_cast<QScrollArea *>(parent);
    }
    [[nodiscard]] QString valeur(const QString &libelle) const
    {
        return lisible(Ecran::valeurEnFaceDe(fenetre(), libelle));
    }
    [[nodiscard]] bool montre(const char *texte) const { return Ecran::montre(fenetre(), texte); }
    void cliquer(const QString &nom) { QVERIFY(Ecran::cliquer(fenetre(), nom)); }
    void taper(const QString &nom, const QString &texte) { QVERIFY(Ecran::taper(fenetre(), nom, texte)); }
    void choisir(const QString &nom, const QString &entree) { QVERIFY(Ecran::choisir(fenetre(), nom, entree)); }
    [[nodiscard]] QString souleves() const
    {
        QStringList titres;
        for (const auto *carte : fenetre()->findChildren<CarteLivre *>())
            if (carte->findChild<Couverture *>()->soulevee())
                titres.append(carte->livre().titre);
        return titres.join(u'+');
    }
    static QScrollArea *defilement(QWidget *page)
    {
        while (page && !qobject_cast<QScrollArea *>(page))
            page = page->parentWidget();
        return static_cast<QScrollArea *>(page);
    }
    [[nodiscard]] int quantite(int livre) const { return bon().quantite(banc_->donnees.livres[livre - 1]); }

    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestVueCommande)
#include "tst_vue_commande.moc"
