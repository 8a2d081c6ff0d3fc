#include "composants/Icone.h"
#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"
#include "ui/commande/TransitionCartes.h"
#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using namespace Quillet;

// The real window, worked by clicks and keys.
class TestVueCommande : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { banc_.reset(); }

    void cliquerUneCouverture();
    void compterAuxBornes();
    void autrePoids();
    void changerDeDestination();
    void peserLeColis();
    void toutReinitialiser();
    void changerDeVendeur();
    void changerDeVendeurCoupSurCoup();
    void copierUnChamp();
    void documentsEtReponse();
    void laMoletteNeChangeRien();
    void auClavier();
    void parUnLecteurDEcran();
    void sansRubriqueLaCommande();

private:
    template <typename Controle = QWidget>
    Controle *controle(const QString &nom);
    QString valeur(const QString &libelle);
    void cliquer(const QString &nom) { QVERIFY(Ecran::cliquer(&banc_->app->fenetre(), nom)); }
    void taper(const QString &nom, const QString &texte) { QVERIFY(Ecran::taper(&banc_->app->fenetre(), nom, texte)); }
    void choisir(const QString &nom, const QString &entree)
    {
        QVERIFY(Ecran::choisir(&banc_->app->fenetre(), nom, entree));
    }
    [[nodiscard]] int quantite(int livre) const
    {
        return banc_->app->commande().bon().quantite(banc_->donnees.livres[livre - 1]);
    }

    std::unique_ptr<BancEcran> banc_;
};

namespace {

const QString colisPese = QStringLiteral("Colis pesé, en grammes");
const QString reinitialiser = QStringLiteral("Tout réinitialiser");

} // namespace

template <typename Controle>
Controle *TestVueCommande::controle(const QString &nom)
{
    return qobject_cast<Controle *>(Ecran::controle(&banc_->app->fenetre(), nom));
}

QString TestVueCommande::valeur(const QString &libelle)
{
    return lisible(Ecran::valeurEnFaceDe(&banc_->app->fenetre(), libelle));
}

void TestVueCommande::initTestCase()
{
    QuilletApp::preparer(Theme::Mode::clair);
}

void TestVueCommande::init()
{
    banc_ = std::make_unique<BancEcran>();
    banc_->donnees.livres.append(unLivre(5, Vendeur::davrel, Centimes{1200}, Grammes{180})); // after the one sold out
    banc_->demarrer();
}

void TestVueCommande::cliquerUneCouverture()
{
    QVERIFY(!controle<QAbstractButton>(reinitialiser)->isEnabled());
    cliquer(QStringLiteral("Livre 1"));
    cliquer(QStringLiteral("Livre 1"));
    QCOMPARE(quantite(1), 2);
    QCOMPARE(valeur(QStringLiteral("Livre 1")), QStringLiteral("30,00 €"));
    QCOMPARE(valeur(QStringLiteral("Sous-total")), QStringLiteral("30,00 €"));
    QCOMPARE(valeur(QStringLiteral("TOTAL À PAYER")), QStringLiteral("37,59 €"));
    QCOMPARE(valeur(QStringLiteral("Frais PayPal")), QStringLiteral("-1,44 €"));
    QCOMPARE(valeur(QStringLiteral("Il vous reste")), QStringLiteral("28,56 €"));
    QVERIFY(Ecran::montre(&banc_->app->fenetre(), QStringLiteral("2 livres · 440 g")));
    cliquer(QStringLiteral("Livre 4")); // sold out
    QCOMPARE(quantite(4), 0);
}

void TestVueCommande::compterAuxBornes()
{
    auto *moins = controle<QAbstractButton>(QStringLiteral("Retirer un exemplaire"));
    QVERIFY(!moins->isEnabled());
    cliquer(QStringLiteral("Ajouter un exemplaire"));
    QCOMPARE(quantite(1), 1);
    moins->click();
    QVERIFY(!moins->isEnabled());
    QVERIFY(Ecran::montre(&banc_->app->fenetre(), QStringLiteral("Aucun livre")));
}

void TestVueCommande::autrePoids()
{
    const QString champ = QStringLiteral("Poids de l’emballage, en grammes");
    QVERIFY(!controle(champ));
    choisir(QStringLiteral("Emballage"), QStringLiteral("Autre poids"));
    QCOMPARE(controle<QLineEdit>(champ)->text(), QStringLiteral("100"));
    taper(champ, QStringLiteral("75"));
    QCOMPARE(banc_->app->commande().bon().poidsEmballageLibre, Grammes{75});
    QCOMPARE(valeur(QStringLiteral("Poids calculé")), QStringLiteral("75 g"));
    auto *saisi = controle<QLineEdit>(champ);
    QTest::keyClick(saisi, Qt::Key_Backspace);
    QTest::keyClick(saisi, Qt::Key_Backspace);
    QTest::keyClicks(saisi, QStringLiteral("90"));
    QCOMPARE(saisi->text(), QStringLiteral("90")); // no zero slipped in while the field was empty
    choisir(QStringLiteral("Emballage"), QStringLiteral("Carton (180 g)"));
    QVERIFY(!controle(champ));
    QCOMPARE(valeur(QStringLiteral("Poids calculé")), QStringLiteral("180 g"));
}

void TestVueCommande::changerDeDestination()
{
    cliquer(QStringLiteral("Livre 1"));
    choisir(QStringLiteral("Envoi vers"), QStringLiteral("Union européenne"));
    QCOMPARE(valeur(QStringLiteral("Déclaration en douane")), QStringLiteral("Non"));
    cliquer(QStringLiteral("Colis pour les Canaries & Ceuta"));
    QVERIFY(Ecran::montre(&banc_->app->fenetre(), QStringLiteral("Colis pour les Canaries && Ceuta"))); // painted &
    QCOMPARE(valeur(QStringLiteral("Déclaration en douane")), QStringLiteral("Oui, CN23"));
    auto *pays = controle<QLineEdit>(QStringLiteral("Pays de livraison"));
    QApplication::clipboard()->setText(QStringLiteral("Sp\r\nain\n")); // as a page gives it
    pays->paste();
    QCOMPARE(pays->text(), QStringLiteral("Spain"));
    QCOMPARE(banc_->app->commande().bon().paysLivraison, QStringLiteral("Spain"));
    cliquer(QStringLiteral("Français"));
    QVERIFY(banc_->app->commande().bon().langue == Langue::francais);

    choisir(QStringLiteral("Envoi vers"), QStringLiteral("Suisse"));
    QVERIFY(!banc_->app->commande().bon().horsUE && !banc_->app->commande().bon().langue);
    QCOMPARE(controle<QLineEdit>(QStringLiteral("Pays de livraison"))->text(), QString());
    QVERIFY(controle<QAbstractButton>(QStringLiteral("Anglais"))->isChecked());
    QVERIFY(!controle(QStringLiteral("Colis pour les Canaries & Ceuta")));
}

void TestVueCommande::peserLeColis()
{
    cliquer(QStringLiteral("Livre 2")); // never weighed
    QVERIFY(Ecran::montre(&banc_->app->fenetre(), QStringLiteral("Livre 2 n’a pas encore été pesé : pesez le colis.")));
    QCOMPARE(valeur(QStringLiteral("TOTAL À PAYER")), QStringLiteral("—"));
    taper(colisPese, QStringLiteral("501"));
    QCOMPARE(valeur(QStringLiteral("Palier Colissimo")), QStringLiteral("jusqu’à 2 kg"));
    QCOMPARE(valeur(QStringLiteral("TOTAL À PAYER")), QStringLiteral("33,19 €"));
    QVERIFY(
        !Ecran::montre(&banc_->app->fenetre(), QStringLiteral("Livre 2 n’a pas encore été pesé : pesez le colis.")));
    auto *champ = controle<QLineEdit>(colisPese);
    champ->selectAll();
    QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(champ, &menu);
    QVERIFY(champ->hasSelectedText()); // what its menu would copy
    QTest::keyClick(champ, Qt::Key_Delete);
    QVERIFY(!banc_->app->commande().bon().poidsPese);
    QCOMPARE(valeur(QStringLiteral("TOTAL À PAYER")), QStringLiteral("—"));
    taper(colisPese, QStringLiteral("-4a5,0")); // keys that make no sense have no effect
    QCOMPARE(banc_->app->commande().bon().poidsPese, Grammes{450});
    taper(colisPese, QStringLiteral("9999999"));
    QCOMPARE(banc_->app->commande().bon().poidsPese, Grammes{999999});
}

void TestVueCommande::toutReinitialiser()
{
    cliquer(QStringLiteral("Livre 1"));
    choisir(QStringLiteral("Emballage"), QStringLiteral("Carton (180 g)"));
    choisir(QStringLiteral("Envoi vers"), QStringLiteral("Suisse"));
    taper(colisPese, QStringLiteral("450"));
    taper(QStringLiteral("Pays de livraison"), QStringLiteral("Switzerland"));
    cliquer(reinitialiser);
    QVERIFY(banc_->app->commande().bon().estVide() && !banc_->app->commande().bon().poidsPese
            && banc_->app->commande().bon().paysLivraison.isEmpty());
    QCOMPARE(controle<QLineEdit>(colisPese)->text(), QString());
    QCOMPARE(controle<QComboBox>(QStringLiteral("Emballage"))->currentText(), QStringLiteral("Carton (180 g)"));
    QCOMPARE(controle<QComboBox>(QStringLiteral("Envoi vers"))->currentText(), QStringLiteral("Suisse"));
    QVERIFY(!controle<QAbstractButton>(reinitialiser)->isEnabled());
}

void TestVueCommande::changerDeVendeur()
{
    cliquer(QStringLiteral("Livre 1"));
    cliquer(QStringLiteral("Mireva")); // no identity: its short name
    QVERIFY(!controle(QStringLiteral("Livre 1")));
    QVERIFY(Ecran::montre(&banc_->app->fenetre(), QStringLiteral("Aucun livre")));
    QVERIFY(controle<QAbstractButton>(reinitialiser)->isEnabled());
    cliquer(QStringLiteral("Livre 3"));
    QCOMPARE(quantite(3), 1);
    cliquer(QStringLiteral("davrel.example"));
    QCOMPARE(quantite(1), 1);
    QCOMPARE(valeur(QStringLiteral("Sous-total")), QStringLiteral("15,00 €"));

    const QString sansLivre = QStringLiteral("Le catalogue n’a pas de livre de ce vendeur.");
    QVERIFY(!Ecran::montre(&banc_->app->fenetre(), sansLivre));
    banc_->donnees.livres.removeIf([](const Livre &livre) { return livre.vendeur == Vendeur::mireva; });
    banc_->demarrer();
    cliquer(QStringLiteral("Mireva"));
    QVERIFY(Ecran::montre(&banc_->app->fenetre(), sansLivre));
}

// The second change comes while the first is still moving: one motion only, and nothing of it stays.
void TestVueCommande::changerDeVendeurCoupSurCoup()
{
    const auto transitions = [&] { return banc_->app->fenetre().findChildren<TransitionCartes *>(); };
    cliquer(QStringLiteral("Mireva"));
    QTest::qWait(100);
    QCOMPARE(transitions().size(), 1);
    cliquer(QStringLiteral("davrel.example"));
    QCOMPARE(transitions().size(), 1);
    cliquer(QStringLiteral("Livre 1"));
    QCOMPARE(transitions().size(), 0);
    cliquer(QStringLiteral("Mireva"));
    QTRY_VERIFY_WITH_TIMEOUT(transitions().isEmpty(), 2000);
}

void TestVueCommande::copierUnChamp()
{
    cliquer(QStringLiteral("Livre 1"));
    const QImage coche = Icone::icone(QStringLiteral("checkmark.circle.fill")).pixmap(16).toImage();
    const auto copie = [&](const QString &titre) {
        return controle<QAbstractButton>(QStringLiteral("Copier ") + titre)->icon().pixmap(16).toImage() == coche;
    };
    QVERIFY(!copie(QStringLiteral("Prix")));
    QCOMPARE(lisible(controle(QStringLiteral("Copier Prix"))->accessibleDescription()), QStringLiteral("20,49 €"));
    cliquer(QStringLiteral("Copier Prix"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("20,49"));
    QVERIFY(copie(QStringLiteral("Prix")));
    QTest::qWait(700);
    cliquer(QStringLiteral("Copier Nom de l’objet"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Éditions Davrel – 1 book"));
    QVERIFY(copie(QStringLiteral("Prix")) && copie(QStringLiteral("Nom de l’objet")));
    QTRY_VERIFY_WITH_TIMEOUT(!copie(QStringLiteral("Prix")), 1200);
    QVERIFY(copie(QStringLiteral("Nom de l’objet")));
}

void TestVueCommande::documentsEtReponse()
{
    const auto actif = [this](const char *bouton) {
        return controle<QAbstractButton>(QString::fromUtf8(bouton))->isEnabled();
    };
    QVERIFY(!actif("Facture") && !actif("E-mail en français"));
    cliquer(QStringLiteral("Livre 1"));
    choisir(QStringLiteral("Envoi vers"), QStringLiteral("Union européenne"));
    QVERIFY(actif("Facture") && actif("Déclaration en douane") && actif("E-mail en anglais"));
    cliquer(QStringLiteral("Français"));
    QVERIFY(actif("E-mail en français"));
    taper(QStringLiteral("Colis pesé, en grammes"), QStringLiteral("2001")); // beyond the last tier
    QVERIFY(!actif("Facture") && !actif("E-mail en français"));
}

void TestVueCommande::laMoletteNeChangeRien()
{
    for (const QString &nom : {QStringLiteral("Emballage"), QStringLiteral("Envoi vers")}) {
        auto *choix = controle<QComboBox>(nom);
        QVERIFY(!(choix->focusPolicy() & ~Qt::StrongFocus)); // a wheel that takes the focus takes the next letters too
        const int avant = choix->currentIndex();
        QWheelEvent cran(QPointF(5, 5), choix->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(choix, &cran);
        QCOMPARE(choix->currentIndex(), avant);
    }
}

// Tab alone reaches every control in the order in which they are read, and Space adds a copy.
void TestVueCommande::auClavier()
{
    cliquer(QStringLiteral("Mireva"));
    cliquer(QStringLiteral("davrel.example")); // the cards are new ones: they must keep their place
    banc_->app->fenetre().contenu()->findChild<QListWidget *>()->setFocus();
    QStringList atteints;
    for (int i = 0; i < 50; ++i) {
        QTest::keyClick(banc_->app->fenetre().focusWidget() ? banc_->app->fenetre().focusWidget()
                                                            : &banc_->app->fenetre(),
                        Qt::Key_Tab);
        const QString nom = QApplication::focusWidget()->accessibleName();
        QVERIFY2(!nom.isEmpty() || qobject_cast<QAbstractButton *>(QApplication::focusWidget()),
                 QApplication::focusWidget()->metaObject()->className());
        atteints.append(nom.isEmpty() ? qobject_cast<QAbstractButton *>(QApplication::focusWidget())->text()
                                      : nom.section(u',', 0, 0));
        if (nom.startsWith(QStringLiteral("Livre 1")) && quantite(1) == 0)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    }
    QCOMPARE(quantite(1), 1);
    qsizetype precedent = -1;
    for (const char *nom : {"Tout réinitialiser", "davrel.example", "Livre 1", "Retirer un exemplaire",
                            "Ajouter un exemplaire", "Livre 2", "Livre 5", "Emballage", "Colis pesé", "Envoi vers",
                            "Français", "Créer le lien dans PayPal", "Pays de livraison", "Copier Prix",
                            "Copier URL de redirection", "Facture", "E-mail en français", "Rubriques"}) {
        const qsizetype rang = atteints.indexOf(QString::fromUtf8(nom), precedent + 1);
        QVERIFY2(rang > precedent, qPrintable(QString::fromUtf8(nom) + QStringLiteral(" / ") + atteints.join(u'|')));
        precedent = rang;
    }
    QVERIFY(!atteints.contains(QStringLiteral("Livre 4")));
}

// What a screen reader does without a click or a key counts as much.
void TestVueCommande::parUnLecteurDEcran()
{
    cliquer(QStringLiteral("Livre 1"));
    auto *envoi = controle<QComboBox>(QStringLiteral("Envoi vers"));
    envoi->showPopup();
    const QModelIndex suisse = envoi->model()->index(envoi->findText(QStringLiteral("Suisse")), 0);
    envoi->view()->selectionModel()->select(suisse, QItemSelectionModel::ClearAndSelect);
    QTRY_COMPARE(banc_->app->commande().bon().codeDestination, vers("suisse"));

    controle<QLineEdit>(colisPese)->setText(QStringLiteral("501"));
    QCOMPARE(banc_->app->commande().bon().poidsPese, Grammes{501});
    controle<QLineEdit>(colisPese)->setText(QStringLiteral("abc"));
    QCOMPARE(banc_->app->commande().bon().poidsPese, Grammes{501});
    controle<QLineEdit>(QStringLiteral("Pays de livraison"))->setText(QStringLiteral("Switzerland"));
    QCOMPARE(banc_->app->commande().bon().paysLivraison, QStringLiteral("Switzerland"));

    auto *francais = controle<QAbstractButton>(QStringLiteral("Français"));
    QVERIFY(!(francais->focusPolicy() & Qt::TabFocus)); // Tab leads to the language shown
    francais->toggle();
    QVERIFY(banc_->app->commande().bon().langue == Langue::francais && (francais->focusPolicy() & Qt::TabFocus));
}

void TestVueCommande::sansRubriqueLaCommande()
{
    ContenuPrincipal *contenu = banc_->app->fenetre().contenu();
    contenu->montrer(Rubrique::livres);
    contenu->findChild<QListWidget *>()->clearSelection();
    QVERIFY(!contenu->rubrique());
    QVERIFY(controle(reinitialiser));
}

QTEST_MAIN(TestVueCommande)
#include "tst_vue_commande.moc"
