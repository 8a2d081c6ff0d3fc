#include "composants/Feuille.h"
#include "documents/NumerotationFactures.h"
#include "tests/BancEcran.h"
#include "tests/DisquePlein.h"
#include "ui/AlerteRelecture.h"
#include "ui/ContenuPrincipal.h"
#include "ui/vendeurs/FeuilleVendeurs.h"

#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

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

    // Each field is kept as it is left, by one gesture that says what it is; what is refused stays where it was typed.
    void laFeuilleGardeChaqueChamp()
    {
        Feuille *feuille = ouvrirLaFeuille();
        const auto siret = [&] { return reglages().vendeurs[Vendeur::davrel].siret.value_or("aucun"); };
        QVERIFY(remplir(feuille, "Nom, vendeur", "Anne Roux"));
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nom, "Anne Roux");
        QVERIFY(remplir(feuille, "Adresse, vendeur", "3 quai\n\n 00000 Ici "));
        QCOMPARE(lus().vendeurs[Vendeur::davrel].adresse, (QStringList{"3 quai", "00000 Ici"}));
        QVERIFY(remplir(feuille, "SIRET, vendeur", "732 829 320 00075"));
        QCOMPARE(siret(), "00000000000000");
        QVERIFY(Ecran::montre(feuille, "Ce n’est pas un numéro SIRET."));
        QVERIFY(remplir(feuille, "Nom court, vendeur", "Anne"));
        QCOMPARE(texte(feuille, "SIRET, vendeur"), "732 829 320 00075");
        QVERIFY(remplir(feuille, "SIRET, vendeur", "732 829 320 00074"));
        QVERIFY(!Ecran::montre(feuille, "Ce n’est pas un numéro SIRET."));
        QVERIFY(Ecran::cliquer(feuille, "Prendre le numéro EORI FR73282932000074"));
        QCOMPARE(lus().vendeurs[Vendeur::davrel].eori, "FR73282932000074");
        QVERIFY(Ecran::controle(feuille, "Annuler : numéro EORI de « Anne Roux »"));
        QTest::keyClick(feuille, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(feuille, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(siret(), "00000000000000");
        QCOMPARE(texte(feuille, "SIRET, vendeur"), "00000000000000");
        QTest::keyClick(feuille, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(lus().vendeurs[Vendeur::davrel].siret, "732 829 320 00074");

        QVERIFY(remplir(feuille, "Code douanier", "49019"));
        QVERIFY(Ecran::montre(feuille, "Six à dix chiffres attendus."));
        QVERIFY(Ecran::choisir(feuille, "Destination d’un autre code", "Suisse"));
        QVERIFY(Ecran::cliquer(feuille, "Ajouter un code pour cette destination"));
        QVERIFY(remplir(feuille, "Code douanier pour Suisse", "4901990000"));
        QCOMPARE(lus().douane.codesParDestination->value(vers("suisse")), "4901990000");
        QVERIFY(Ecran::cliquer(feuille, "Retirer le code pour Suisse"));
        QVERIFY(!lus().douane.codesParDestination && !Ecran::controle(feuille, "Code douanier pour Suisse"));
        QCOMPARE(reglages().douane.codeSH, "490199");
    }

    // Read again from the sheet that hides the window's own line; what changed there too is not written over.
    void changesAilleurs()
    {
        Feuille *feuille = ouvrirLaFeuille();
        const auto ailleurs = [&](const QString &nom, const QString &second = {}) {
            Reglages autres = lus();
            if (!second.isEmpty())
                autres.vendeurs.insert(Vendeur::mireva, {.nom = second, .adresse = {"2 rue Exemple"}});
            autres.vendeurs[Vendeur::davrel].nom = nom;
            Fichier::ecrire(banc_->donnees.cheminUtilisateur("donnees/reglages.json"), Json::encoder(autres));
        };
        ailleurs("Anne Roux");
        QVERIFY(remplir(feuille, "Nom court, vendeur", "Anne"));
        QCOMPARE(texte(feuille, "Nom court, vendeur"), "Anne");
        QVERIFY(Ecran::cliquer(feuille, "Les relire"));
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nom, "Anne Roux");
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nomCourt, "Anne");
        ailleurs("Anne Brun");
        QVERIFY(remplir(feuille, "Nom, vendeur", "Anna"));
        QVERIFY(remplir(feuille, "Nom court, vendeur", "Ana"));
        connect(
            feuille->findChild<AlerteRelecture *>(), &AlerteRelecture::vaRelire, this, [&] { ailleurs("Anne Noir"); },
            Qt::SingleShotConnection);
        for (const char *nom : {"Anne Brun", "Anne Noir"}) { // changed once more, just as it was read
            QVERIFY(Ecran::cliquer(feuille, "Les relire"));
            QCOMPARE(texte(feuille, "Nom, vendeur"), nom);
        }
        QVERIFY(dit("Changé ailleurs aussi, donc non repris : « Anna »"));
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nom, "Anne Noir");
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nomCourt, "Ana");
        QVERIFY(Ecran::cliquer(feuille, "Ajouter un second vendeur"));
        QVERIFY(remplir(feuille, "Nom, second vendeur", "Bruno"));
        ailleurs("Anne Noir", "Béa");
        QVERIFY(remplir(feuille, "Nom court, vendeur", "Anne"));
        QVERIFY(Ecran::cliquer(feuille, "Les relire"));
        QCOMPARE(texte(feuille, "Nom, second vendeur"), "Béa");
        QVERIFY(dit("« Bruno »"));
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nomCourt, "Anne");
    }

    void lesEmballagesSurLaFeuille()
    {
        Feuille *feuille = ouvrirLaFeuille();
        const auto noms = [&] {
            QStringList lignes;
            for (const Emballage &emballage : lus().emballages)
                lignes.append(emballage.nom + u' ' + QString::number(emballage.poids.valeur()));
            return lignes.join(u'|');
        };
        QVERIFY(Ecran::cliquer(feuille, "Ajouter un emballage"));
        QCOMPARE(noms(), "Enveloppe à bulles 40|Carton 180|Nouvel emballage 50");
        QVERIFY(remplir(feuille, "Nom de l’emballage 3", "Carton"));
        QVERIFY(Ecran::montre(feuille, "Un autre emballage a déjà ce nom."));
        QVERIFY(remplir(feuille, "Nom de l’emballage 3", "Sac"));
        QVERIFY(remplir(feuille, "Poids de l’emballage 3, en grammes", "lourd"));
        QCOMPARE(noms(), "Enveloppe à bulles 40|Carton 180|Sac 50");
        QVERIFY(remplir(feuille, "Poids de l’emballage 3, en grammes", "1 200"));
        banc_->app->commande().setEmballage("Sac");
        QVERIFY(remplir(feuille, "Nom de l’emballage 3", "Toile"));
        QCOMPARE(banc_->app->commande().bon().emballage, "Toile");
        QTest::keyClick(feuille, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(banc_->app->commande().bon().emballage, "Sac");
        QVERIFY(Ecran::cliquer(feuille, "Monter « Sac »"));
        QVERIFY(Ecran::choisir(feuille, "Une nouvelle commande commence par", "Sac"));
        QCOMPARE(noms() + u'/' + lus().emballageDeDepart.value_or(""), "Enveloppe à bulles 40|Sac 1200|Carton 180/Sac");
        QVERIFY(Ecran::cliquer(feuille, "Retirer « Enveloppe à bulles »"));
        QVERIFY(Ecran::cliquer(feuille, "Retirer « Carton »"));
        QCOMPARE(noms(), "Sac 1200");
        QVERIFY(!Ecran::controle(feuille, "Nom de l’emballage 2"));
        for (int fois = 0; fois < 3; ++fois)
            QTest::keyClick(feuille, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(Ecran::controle(feuille, "Nom de l’emballage 3"));
        QCOMPARE(texte(feuille, "Nom de l’emballage 2"), "Sac");
    }

    void unSecondVendeur()
    {
        Feuille *feuille = ouvrirLaFeuille();
        QVERIFY(!Ecran::controle(feuille, "Retirer ce vendeur"));
        QVERIFY(Ecran::cliquer(feuille, "Ajouter un second vendeur"));
        QVERIFY(!Ecran::controle(feuille, "Ajouter un second vendeur"));
        QVERIFY(remplir(feuille, "Nom, second vendeur", "Bruno"));
        QCOMPARE(lus().vendeurs.size(), 1); // nobody invoices without an address
        feuille->reject();
        QVERIFY(feuille->isVisible() && Ecran::montre(feuille, "Adresse à remplir."));
        QCOMPARE(QApplication::focusWidget()->accessibleName(), "Adresse, second vendeur");
        QVERIFY(remplir(feuille, "Adresse, second vendeur", "2 rue Exemple"));
        QCOMPARE(lus().vendeurs[Vendeur::mireva].nom, "Bruno");
        QVERIFY(Ecran::cliquer(feuille, "Retirer ce vendeur")); // the first, who has books
        QVERIFY(Ecran::montre(feuille, "3 livres sont vendus sous ce nom : confiez-les d’abord à l’autre vendeur."));
        QCOMPARE(lus().vendeurs.size(), 2);
        QTest::keyClick(feuille, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!Ecran::controle(feuille, "Nom, second vendeur"));
        QCOMPARE(lus().vendeurs.size(), 1);
    }

    // What is not kept is said before the sheet goes; what the disk refused is tried again.
    void rienNEstPerduEnFermant()
    {
        Feuille *feuille = ouvrirLaFeuille();
        {
            const DisquePlein plein;
            QVERIFY(remplir(feuille, "Nom, vendeur", "Anne Roux"));
        }
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nom, "Éditions Davrel");
        feuille->reject(); // leaves the field once more
        QVERIFY(!feuille->isVisible());
        QCOMPARE(lus().vendeurs[Vendeur::davrel].nom, "Anne Roux");
        feuille = ouvrirLaFeuille();
        QVERIFY(remplir(feuille, "SIRET, vendeur", "12"));
        feuille->reject();
        QVERIFY(feuille->isVisible() && dit("fermez encore une fois"));
        QCOMPARE(texte(feuille, "SIRET, vendeur"), "12");
        feuille->reject();
        QVERIFY(!feuille->isVisible());
    }

    void unAutreAEcrit()
    {
        Feuille *feuille = ouvrirLaFeuille();
        QVERIFY(QFile::remove(banc_->donnees.cheminUtilisateur("donnees/reglages.json")));
        QVERIFY(remplir(feuille, "Nom, vendeur", "Anne Roux"));
        QVERIFY(dit("Modification non enregistrée : "));
        QCOMPARE(texte(feuille, "Nom, vendeur"), "Anne Roux");
        QCOMPARE(reglages().vendeurs[Vendeur::davrel].nom, "Éditions Davrel");
    }

    // From the example to one's own: nothing is written before the end, and all of it then.
    void premiersPas()
    {
        banc_->origine = Origine::exemple;
        banc_->donnees.reglages.vendeurs[Vendeur::davrel].siret.reset();
        banc_->demarrer();
        NumerotationFactures{banc_->donnees.preferences()}.retenir("2026-005", Vendeur::davrel);
        QDialog *feuille = banc_->ouvrir("Mettre les vôtres…");
        QCOMPARE(texte(feuille, "Dernière facture, vendeur"), "2026-005"); // not ended unseen
        QVERIFY(Ecran::cliquer(feuille, "Suivant"));
        QVERIFY(Ecran::montre(feuille, "À remplir.") && Ecran::montre(feuille, "Adresse à remplir."));
        QCOMPARE(QApplication::focusWidget()->accessibleName(), "Nom, vendeur");
        QVERIFY(remplir(feuille, "Nom, vendeur", "Anne Roux"));
        QVERIFY(remplir(feuille, "Adresse, vendeur", "3 quai"));
        QVERIFY(remplir(feuille, "Dernière facture, vendeur", "2025-12"));
        QVERIFY(Ecran::cliquer(feuille, "Suivant"));
        QVERIFY(Ecran::montre(feuille, "Numéro de 2026 attendu, de la forme 2026-001."));
        QVERIFY(remplir(feuille, "Dernière facture, vendeur", "2026-012"));
        QVERIFY(Ecran::cliquer(feuille, "Nous sommes deux à vendre"));
        QVERIFY(Ecran::cliquer(feuille, "Suivant"));
        QCOMPARE(QApplication::focusWidget()->accessibleName(), "Nom, second vendeur");
        QVERIFY(Ecran::cliquer(feuille, "Retirer le second vendeur"));
        QVERIFY(Ecran::cliquer(feuille, "Suivant"));
        QVERIFY(remplir(feuille, "Nom de l’emballage 1", "Sac"));
        QVERIFY(Ecran::cliquer(feuille, "Précédent"));
        QCOMPARE(texte(feuille, "Nom, vendeur"), "Anne Roux");
        QVERIFY(Ecran::cliquer(feuille, "Suivant"));
        QVERIFY(Ecran::cliquer(feuille, "Suivant"));
        QVERIFY(Ecran::cliquer(feuille, "Commencer avec ce livre"));
        QVERIFY(feuille->isVisible()); // it has no title yet
        QVERIFY(remplir(feuille, "Titre", "Le mien"));
        QVERIFY(remplir(feuille, "Auteur", "Anne"));
        QVERIFY(remplir(feuille, "Format", "14 × 21 cm"));
        QVERIFY(remplir(feuille, "Pages", "120"));
        QVERIFY(remplir(feuille, "Prix", "12"));
        QVERIFY(Ecran::cliquer(feuille, "Plus tard"));
        QVERIFY(Ecran::cliquer(Dialogues::devant(), "Continuer"));
        QVERIFY(!QFile::exists(banc_->donnees.cheminUtilisateur("donnees")));
        {
            const DisquePlein plein;
            QVERIFY(Ecran::cliquer(feuille, "Commencer avec ce livre"));
        }
        QVERIFY(!Ecran::controle(feuille, "Les relire"));
        QVERIFY(QDir().mkdir(banc_->donnees.cheminUtilisateur("donnees"))); // by another computer
        QVERIFY(Ecran::cliquer(feuille, "Commencer avec ce livre"));
        QVERIFY(dit("arrivées d’ailleurs entre-temps") && Ecran::controle(feuille, "Les relire"));
        QVERIFY(QDir().rmdir(banc_->donnees.cheminUtilisateur("donnees")));
        banc_->donnees.ecrireRessource("destinations.json", "illisible");
        QVERIFY(Ecran::cliquer(feuille, "Commencer avec ce livre"));
        QVERIFY(dit("destinations.json") && !dit("arrivées d’ailleurs")); // its own
        banc_->donnees.deposer();
        QVERIFY(QDir(banc_->donnees.cheminUtilisateur("donnees")).removeRecursively());
        const NumerotationFactures series{banc_->donnees.preferences()};
        QCOMPARE(series.dernier(Vendeur::davrel), "2026-005");
        QVERIFY(Ecran::cliquer(feuille, "Commencer avec ce livre"));

        QVERIFY(!feuille->isVisible());
        QVERIFY(banc_->app->catalogue().donnees().personnelles);
        QCOMPARE(lus().vendeurs.keys(), QList<Cle<Vendeur>>{Vendeur::davrel});
        QCOMPARE(lus().emballages.first().nom, "Sac");
        QCOMPARE(lus().vendeurs[Vendeur::davrel].mentionTva, "TVA non applicable, art. 293 B du CGI");
        QCOMPARE(banc_->app->catalogue().donnees().livres.value(0).titre, "Le mien");
        QCOMPARE(fenetre()->focusWidget(), Ecran::controle(fenetre(), "Le mien"));
        QVERIFY(!dit("exemple") && !dit("Davrel") && !dit("Mireva"));
        QCOMPARE(series.prochain(Vendeur::davrel, jourDuBanc), "2026-013");
        QCOMPARE(series.dernier(Vendeur::mireva), "");
    }

    void lExempleSeDit()
    {
        banc_->origine = Origine::exemple;
        banc_->demarrer();
        const auto ligne = [&] { return dit("sont un exemple."); };
        QVERIFY(ligne());
        banc_->commander("france");
        for (const char *bouton : {"Facture", "E-mail en français"}) {
            QDialog *feuille = banc_->ouvrir(bouton);
            QVERIFY2(dit("inventés de l’exemple"), bouton);
            feuille->close();
        }
        QVERIFY(Ecran::cliquer(fenetre(), "Continuer avec l’exemple"));
        QVERIFY(!ligne());
        QCOMPARE(fenetre()->focusWidget()->accessibleName().left(14), "davrel.example"); // what is below
        banc_->demarrer();
        QVERIFY(!ligne());
        banc_->origine = Origine::administrateur;
        banc_->demarrer();
        banc_->commander("france");
        QVERIFY(banc_->ouvrir("Facture"));
        QVERIFY(!dit("inventés de l’exemple"));
    }

    // The folder of whoever administers the computer is not written, but may be taken over.
    void lesDonneesDUnAutre()
    {
        banc_->origine = Origine::administrateur;
        banc_->demarrer();
        banc_->donnees.ecrireRessource("couvertures/sans-image.jpg", "image");
        Feuille *feuille = ouvrirLaFeuille();
        QVERIFY(!Ecran::controle(feuille, "Nom, vendeur"));
        QVERIFY(Ecran::cliquer(feuille, "Les reprendre chez moi"));
        QVERIFY(banc_->app->catalogue().donnees().personnelles);
        QCOMPARE(banc_->app->catalogue().donnees().livres, banc_->donnees.livres);
        QCOMPARE(banc_->donnees.lireUtilisateur("donnees/couvertures/sans-image.jpg"), "image");
        QVERIFY(Ecran::controle(Dialogues::devant(), "Nom, vendeur"));
    }

private:
    [[nodiscard]] Fenetre *fenetre() const { return &banc_->app->fenetre(); }
    [[nodiscard]] Reglages reglages() const { return banc_->app->catalogue().donnees().reglages; }
    // Of the file.
    [[nodiscard]] Reglages lus() const
    {
        return Ressources(QDir(banc_->donnees.cheminUtilisateur("donnees"))).lire<Reglages>("reglages");
    }
    Feuille *ouvrirLaFeuille()
    {
        if (banc_->origine == Origine::dossier) {
            banc_->origine = Origine::utilisateur;
            banc_->donnees.reglages.vendeurs[Vendeur::davrel].mentionTva = "sans";
            banc_->donnees.livres.removeIf([](const Livre &livre) { return livre.vendeur == Vendeur::mireva; });
            banc_->demarrer();
        }
        FeuilleVendeurs::ouvrir(banc_->app->contexte(), fenetre());
        QDialog *feuille = Dialogues::devant();
        if (!feuille || !QTest::qWaitForWindowActive(feuille))
            qFatal("Aucune feuille");
        return static_cast<Feuille *>(feuille);
    }
    // Types in place of what the field holds, then leaves it.
    static bool remplir(QWidget *feuille, const QString &nom, const QString &texte)
    {
        QWidget *champ = Ecran::controle(feuille, nom);
        if (!champ)
            return false;
        champ->setFocus();
        if (!QTest::qWaitFor([&] { return champ->hasFocus(); })) // once the sheet is in front
            return false;
        QTest::keyClick(champ, Qt::Key_A, Qt::ControlModifier);
        if (auto *zone = qobject_cast<QPlainTextEdit *>(champ))
            zone->insertPlainText(texte);
        else
            QTest::keyClicks(champ, texte);
        feuille->setFocus();
        return true;
    }
    static QString texte(QWidget *feuille, const QString &nom)
    {
        return qobject_cast<QLineEdit *>(Ecran::controle(feuille, nom))->text();
    }
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
