#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"

#include <QAccessible>
#include <QLabel>

using namespace Quillet;

// The sellers on the screens, whose names and packagings are data that change.
class TestVendeurs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }
    void init() { banc_ = std::make_unique<BancEcran>(); }
    void cleanup() { banc_.reset(); }

    // Nothing of another shows, until there is one.
    void unSeulVendeur()
    {
        banc_->origine = Origine::utilisateur;
        banc_->donnees.livres.removeIf([](const Livre &livre) { return livre.vendeur == Vendeur::mireva; });
        banc_->donnees.reglages.vendeurs[Vendeur::davrel].nomCourt = "Anne";
        banc_->demarrer();
        Catalogue &catalogue = banc_->app->catalogue();
        QVERIFY(Ecran::controle(fenetre(), "Livre 1"));
        QVERIFY(!dit("Mireva") && !dit("Davrel") && !dit("vendu par"));
        fenetre()->contenu()->montrer(Rubrique::livres);
        QVERIFY(!Ecran::controle(fenetre(), "Tous") && !dit("Mireva") && !dit("vendu par"));

        Reglages reglages = catalogue.donnees().reglages;
        reglages.vendeurs.insert(Vendeur::mireva, {.nom = "Bruno", .adresse = {"2 rue Exemple"}});
        catalogue.remplacer(reglages);
        QVERIFY(Ecran::cliquer(fenetre(), "Bruno"));
        QVERIFY(Ecran::montre(fenetre(), "Aucun livre ne répond à la recherche et aux filtres."));
        fenetre()->contenu()->montrer(Rubrique::commande);
        QVERIFY(Ecran::cliquer(fenetre(), "Bruno, livres de Bruno"));
        QVERIFY(Ecran::montre(fenetre(), "Le catalogue n’a pas de livre de ce vendeur."));

        reglages.vendeurs.remove(Vendeur::mireva);
        catalogue.remplacer(reglages);
        QVERIFY(Ecran::controle(fenetre(), "Livre 1") && !dit("Bruno"));
        fenetre()->contenu()->montrer(Rubrique::livres);
        QVERIFY(!Ecran::montre(fenetre(), "Aucun livre ne répond à la recherche et aux filtres.") && !dit("Bruno"));
    }

    void emballagesEtDestinationsSuivent()
    {
        banc_->origine = Origine::utilisateur;
        banc_->demarrer();
        Catalogue &catalogue = banc_->app->catalogue();
        Reglages reglages = catalogue.donnees().reglages;
        reglages.emballages.append({"Sac", Grammes{12}});
        catalogue.remplacer(reglages);
        QVERIFY(Ecran::choisir(fenetre(), "Emballage", "Sac (12 g)"));
        QCOMPARE(banc_->app->commande().bon().emballage, "Sac");
        banc_->donnees.destinations.removeFirst();
        Fichier::ecrire(banc_->donnees.cheminUtilisateur("donnees/destinations.json"),
                        Json::encoder(banc_->donnees.destinations));
        catalogue.recharger();
        QVERIFY(!Ecran::choisir(fenetre(), "Envoi vers", "France"));
        QVERIFY(Ecran::choisir(fenetre(), "Envoi vers", "Suisse"));
    }

private:
    [[nodiscard]] Fenetre *fenetre() const { return &banc_->app->fenetre(); }
    // Whether anything in sight, or said of it, has these words.
    [[nodiscard]] bool dit(const QString &mots) const
    {
        for (const auto *widget : fenetre()->findChildren<QWidget *>()) {
            const auto *etiquette = qobject_cast<const QLabel *>(widget);
            auto *lu =
                widget->isVisible() ? QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget)) : nullptr;
            if ((etiquette && etiquette->isVisible() && etiquette->text().contains(mots))
                || (lu && lu->text(QAccessible::Name).contains(mots)))
                return true;
        }
        return false;
    }

    std::unique_ptr<BancEcran> banc_;
};

QTEST_MAIN(TestVendeurs)
#include "tst_vendeurs.moc"
