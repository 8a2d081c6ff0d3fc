#include "tests/BancEcran.h"
#include "tests/serveur/ServeurLocal.h"
#include "ui/ContenuPrincipal.h"
#include "visite/SiteDeLaVisite.h"

#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace Quillet;

namespace {

const QString voirTarifs = "Voir les changements, Tarifs Colissimo";
const QString voirFrais = "Voir les changements, Frais PayPal";
const QString enregistrer = "Enregistrer ces tarifs";

} // namespace

// The tariffs screen and its sheets.
class TestVueTarifs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        banc_->donnees.reglages.fraisPaypal.supplements = {
            {RegionPaypal::eee, Taux{0}}, {RegionPaypal::royaumeUni, Taux{129}}, {RegionPaypal::autres, Taux{199}}};
    }

    void cleanup() { banc_.reset(); }

    void laPageGardeSaPlace()
    {
        demarrer(banc_->donnees.tarifs.last(), banc_->donnees.reglages.fraisPaypal);
        const Fenetre &fenetre = banc_->app->fenetre();
        QVERIFY(Ecran::montre(&fenetre, "en vigueur au 1er janvier 2026"));
        auto *page = qobject_cast<QScrollArea *>(Ecran::controle(&fenetre, "Tarifs et frais"));
        QVERIFY(page);
        QTest::keyClick(page, Qt::Key_End);
        QVERIFY(page->verticalScrollBar()->value() > 0);
        const QPointer<QWidget> tableau = Ecran::controle(&fenetre, "Europe");
        QVERIFY(tableau);
        banc_->app->commande().setPaysLivraison("la Lune"); // nothing here says so
        QVERIFY(tableau);
        QCOMPARE(rubrique(), "Tarifs Colissimo");
    }

    void changementsEnregistres()
    {
        demarrer(desTarifs("2026-01-01", Centimes{600}), banc_->donnees.reglages.fraisPaypal);
        Fenetre &fenetre = banc_->app->fenetre();
        QCOMPARE(rubrique(), "Tarifs Colissimo, 1 à voir");
        QVERIFY(Ecran::montre(&fenetre, "Nouveaux tarifs sur laposte.fr"));
        QVERIFY(!Ecran::controle(&fenetre, voirFrais));

        QDialog *feuille = banc_->ouvrir(voirTarifs);
        QVERIFY(Ecran::montre(feuille, "En vigueur à partir du 1er avril 2026 · relevés sur laposte.fr le 2 "
                                       "mars 2026"));
        QVERIFY(Ecran::montre(feuille, "2 paliers sur 6 changent."));
        QCOMPARE(BancEcran::luAuTableau(feuille, "France", "Après"), "6,00 €");
        QVERIFY(Ecran::cliquer(feuille, enregistrer));
        QTRY_VERIFY(!Dialogues::devant());
        QCOMPARE(rubrique(), "Tarifs Colissimo");
        QVERIFY(Ecran::montre(&fenetre, "en vigueur au 1er janvier 2026, nouvelle grille au 1er avril 2026"));
        QVERIFY(Ecran::cliquer(&fenetre, "À partir du 1er avril 2026"));
        QTRY_VERIFY(Ecran::montre(&fenetre, "À partir du 1er avril 2026"));
        QTRY_COMPARE(BancEcran::luAuTableau(&fenetre, "jusqu’à 250 g", "France"), "France, jusqu’à 250 g : 6,00 €");
    }

    // One wrong cell among all those that have changed since the day before.
    void correctionDouteuse()
    {
        banc_->donnees.tarifs.prepend(desTarifs("2025-01-01", Centimes{529}));
        TarifsColissimo corriges = banc_->donnees.tarifs.last();
        corriges.grilles[0].paliers[0].prix = Centimes{5490};
        demarrer(corriges, banc_->donnees.reglages.fraisPaypal, "1er janvier 2026");
        QDialog *feuille = banc_->ouvrir(voirTarifs);
        QVERIFY(Ecran::montre(feuille, "2 paliers sur 6 changent."));
        QVERIFY(Ecran::montre(feuille, "Pour les commandes d’aujourd’hui, 1 palier change."));
        QCOMPARE(BancEcran::luAuTableau(feuille, "France", "Avant"), "5,49 €"); // of today: it stands first
        QCOMPARE(BancEcran::luAuTableau(feuille, "France", "Après"), "54,90 €, à vérifier");
        QCOMPARE(BancEcran::luAuTableau(feuille, "UE et Suisse", "Avant"), "5,29 €");
        QCOMPARE(BancEcran::luAuTableau(feuille, "UE et Suisse", "Après"), "5,49 €");
        QString reserves;
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {repondre("Ne pas enregistrer", reserves)}));
        QCOMPARE(reserves, "France, jusqu’à 250 g : 54,90 € au lieu de 5,49 €.");
        QCOMPARE(Dialogues::devant(), feuille);
        QCOMPARE(rubrique(), "Tarifs Colissimo, 1 à voir");
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, enregistrer, {repondre("Enregistrer quand même", reserves)}));
        QTRY_VERIFY(!Dialogues::devant());
        QCOMPARE(rubrique(), "Tarifs Colissimo");
    }

    // What is kept is what was shown.
    void relueSousLaFeuille()
    {
        demarrer(desTarifs("2026-01-01", Centimes{600}), banc_->donnees.reglages.fraisPaypal);
        QDialog *feuille = banc_->ouvrir(voirTarifs);
        serveur_.servir(
            "/poste",
            http("200 OK", SiteDeLaVisite::page(desTarifs("2026-01-01", Centimes{650}), "1er avril 2026").toUtf8()));
        Ecran::cliquer(&banc_->app->fenetre(), "Vérifier, Tarifs Colissimo");
        QTRY_VERIFY(!Ecran::montre(&banc_->app->fenetre(), "Mise à jour en cours…"));
        QVERIFY(Ecran::cliquer(feuille, enregistrer));
        QCOMPARE(Dialogues::devant(), feuille);
        QVERIFY(Ecran::montre(
            feuille, "La page a été relue depuis et dit autre chose : fermez cette feuille, puis rouvrez-la."));
        QCOMPARE(rubrique(), "Tarifs Colissimo, 1 à voir");
    }

    void fraisDouteux()
    {
        FraisPaypal frais = banc_->donnees.reglages.fraisPaypal;
        frais.fixe = Centimes{3500};
        demarrer(banc_->donnees.tarifs.last(), frais);
        QDialog *feuille = banc_->ouvrir(voirFrais);
        QVERIFY(Ecran::montre(feuille, "À vérifier, marqué d’un triangle : zéro, ou plus d’un tiers d’écart."));
        QCOMPARE(BancEcran::luAuTableau(feuille, "Part fixe", "Relevés"), "35,00 €, à vérifier");
        QString reserves;
        QVERIFY(Dialogues::cliquerPuisRepondre(feuille, "Enregistrer ces frais",
                                               {repondre("Ne pas enregistrer", reserves)}));
        QCOMPARE(reserves, "Part fixe : 35,00 € au lieu de 0,35 €.");
        QCOMPARE(rubrique(), "Tarifs Colissimo, 1 à voir");
    }

    void fraisRemisAPlusTard()
    {
        FraisPaypal frais = banc_->donnees.reglages.fraisPaypal;
        frais.taux = Taux{320};
        demarrer(banc_->donnees.tarifs.last(), frais);
        QDialog *feuille = banc_->ouvrir(voirFrais);
        QVERIFY(Ecran::montre(feuille, "Relevés sur paypal.com, tarifs marchands pour la France"));
        QCOMPARE(BancEcran::luAuTableau(feuille, "Taux de base", "En vigueur"), "2,90 %");
        QVERIFY(Ecran::cliquer(feuille, "Plus tard"));
        QTRY_VERIFY(!Dialogues::devant());
        QCOMPARE(rubrique(), "Tarifs Colissimo, 1 à voir"); // still there
        QVERIFY(Ecran::cliquer(banc_->ouvrir(voirFrais), "Enregistrer ces frais"));
        QTRY_VERIFY(!Dialogues::devant());
        QCOMPARE(rubrique(), "Tarifs Colissimo");
    }

    void enregistrementManque()
    {
        demarrer(desTarifs("2026-01-01", Centimes{600}), banc_->donnees.reglages.fraisPaypal);
        banc_->donnees.ecrireUtilisateur("tarifs-colissimo-2026-04-01.json/obstacle", "un dossier");
        QDialog *feuille = banc_->ouvrir(voirTarifs);
        QVERIFY(Ecran::cliquer(feuille, enregistrer));
        QCOMPARE(Dialogues::devant(), feuille); // still open
        QVERIFY(Ecran::montre(
            feuille, QDir::toNativeSeparators(banc_->donnees.cheminUtilisateur("tarifs-colissimo-2026-04-01.json"))
                         + QStringLiteral(" : un dossier occupe la place du fichier")));
        QCOMPARE(rubrique(), "Tarifs Colissimo, 1 à voir");
    }

    void sansDateDEffet()
    {
        demarrer(desTarifs("2026-01-01", Centimes{600}), banc_->donnees.reglages.fraisPaypal, "bientôt");
        const QDialog *feuille = banc_->ouvrir(voirTarifs);
        QVERIFY(
            Ecran::montre(feuille, "Date d’effet introuvable sur la page : c’est le jour du relevé qui est retenu."));
    }

    // What was read is not in force today, yet no tier differs from the day before it comes into force.
    void pasDeChangement()
    {
        QDialog *feuille = relusCommeLaVeille("15 février 2026");
        QVERIFY(Ecran::montre(feuille, "Les tarifs de laposte.fr sont ceux de l’app."));
        QVERIFY(!Ecran::controle(feuille, enregistrer));
        QVERIFY(Ecran::cliquer(feuille, "Fermer"));
    }

    // Saying no more than that, the sheet would hide that today's orders are to change.
    void correctionCommeLaVeille()
    {
        QDialog *feuille = relusCommeLaVeille("1er mars 2026");
        QVERIFY(Ecran::montre(feuille, "Pas de changement"));
        QVERIFY(Ecran::montre(feuille, "Pour les commandes d’aujourd’hui, 1 palier change."));
        QVERIFY(Ecran::montre(feuille, "Par rapport aux tarifs de la veille, aucun palier ne change."));
        QCOMPARE(BancEcran::luAuTableau(feuille, "France", "Après"), "5,49 €");
        const auto *fermer = qobject_cast<QPushButton *>(Ecran::controle(feuille, "Fermer"));
        QVERIFY(fermer && fermer->isDefault());
        QVERIFY(Ecran::cliquer(feuille, enregistrer));
        QTRY_VERIFY(!Dialogues::devant());
        QCOMPARE(rubrique(), "Tarifs Colissimo");
    }

    void verificationManquee()
    {
        banc_->donnees.preferences().ecrire("verification.laPoste", "2025-11-03T12:00:00Z");
        banc_->demarrer(); // on pages that nobody serves
        Fenetre &fenetre = banc_->app->fenetre();
        fenetre.contenu()->montrer(Rubrique::tarifs);
        QTRY_VERIFY(Ecran::controle(&fenetre, "Ouvrir la page, Frais PayPal"));
        QVERIFY(Ecran::montre(&fenetre, "Page inaccessible : connexion impossible."));
        QVERIFY(Ecran::montre(&fenetre, "Vérifiés le 3 novembre 2025 : à revérifier"));
        QCOMPARE(rubrique(), "Tarifs Colissimo, 2 à voir");
        const QString verifier = "Vérifier, Tarifs Colissimo";
        QWidget *bouton = Ecran::controle(&fenetre, verifier);
        bouton->setFocus();
        QTest::keyClick(bouton, Qt::Key_Space);
        QVERIFY(Ecran::montre(&fenetre, "Mise à jour en cours…"));
        QTest::keyClick(bouton, Qt::Key_Space); // starts nothing more, and keeps the focus
        QTRY_VERIFY(!Ecran::montre(&fenetre, "Mise à jour en cours…"));
        QVERIFY(bouton->hasFocus());
    }

private:
    // The prices of before the schedule in force, which has a grid less, read again as from that day.
    QDialog *relusCommeLaVeille(const QString &dateDEffet)
    {
        const TarifsColissimo connus = banc_->donnees.tarifs.last();
        TarifsColissimo courts = connus;
        courts.validite = QDate(2026, 3, 1);
        courts.grilles.removeLast();
        courts.grilles[0].paliers[0].prix = Centimes{600};
        banc_->donnees.tarifs.append(courts);
        demarrer(connus, banc_->donnees.reglages.fraisPaypal, dateDEffet);
        return banc_->ouvrir(voirTarifs);
    }

    // Starts on these pages, and waits until both were checked.
    void demarrer(const TarifsColissimo &tarifs, const FraisPaypal &frais, const QString &dateDEffet = "1er avril 2026")
    {
        serveur_.servir("/poste", http("200 OK", SiteDeLaVisite::page(tarifs, dateDEffet).toUtf8()));
        serveur_.servir("/paypal", http("200 OK", SiteDeLaVisite::page(frais).toUtf8()));
        banc_->pages = {serveur_.adresse("/poste"), serveur_.adresse("/paypal")};
        banc_->demarrer();
        banc_->app->fenetre().contenu()->montrer(Rubrique::tarifs);
        QTRY_VERIFY(!banc_->donnees.preferences().texte("verification.paypal").isEmpty());
    }
    // Answers a question by this button, once it has noted what the question is about.
    static Dialogues::Reponse repondre(const QString &bouton, QString &reserves)
    {
        return [&reserves, bouton](QDialog *question) {
            reserves = lisible(qobject_cast<QMessageBox *>(question)->informativeText());
            Ecran::cliquer(question, bouton);
        };
    }
    [[nodiscard]] QString rubrique() const
    {
        return banc_->app->fenetre().findChild<QListWidget *>()->item(1)->data(Qt::AccessibleTextRole).toString();
    }

    ServeurLocal serveur_;
    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestVueTarifs)
#include "tst_vue_tarifs.moc"
