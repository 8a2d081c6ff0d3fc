#include "documents/NumerotationFactures.h"
#include "echanges/Copies.h"
#include "echanges/Reprise.h"
#include "tests/BancEcran.h"
#include "textes/TextesReprise.h"
#include "ui/echanges/RetourAuDemarrage.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>

using namespace Quillet;

namespace {

// A seller at home, with own data.
struct Maison : BancEcran
{
    Maison() { origine = Origine::utilisateur; }

    void choisir(const QString &entree) const { QVERIFY(Ecran::choisirAuMenu(&app->fenetre(), entree)); }
    // Chooses the file of the dialog that the command opens; what a message then says.
    [[nodiscard]] QString choisirUnFichier(const QString &entree, const QString &fichier) const
    {
        choisir(entree);
        Dialogues::enregistrerSous(fichier)(Dialogues::devant());
        QCoreApplication::processEvents(); // the file is taken once the dialog has closed
        auto *boite = qobject_cast<QMessageBox *>(Dialogues::devant());
        const QString dit = boite ? boite->text() + boite->informativeText() : QString();
        if (boite)
            boite->reject();
        return lisible(dit);
    }
    [[nodiscard]] QString dernier() const
    {
        return NumerotationFactures{donnees.preferences()}.dernier(Vendeur::davrel);
    }
    [[nodiscard]] Copies copies() const
    {
        const auto catalogue = Catalogue::charge(ressources(), donnees.stockage());
        return Copies(Demeure::de(*catalogue, donnees.preferences()));
    }
};

const QString exporter = "Exporter mes données…";
const QString importer = "Importer…";
const QString revenir = "Revenir à une copie…";

} // namespace

class TestEchanges : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    // What stops a start offers the copies, which keep the folder beside.
    void retourAuDemarrage()
    {
        Maison maison;
        maison.demarrer();
        NumerotationFactures{maison.donnees.preferences()}.reprendre("zéro", Vendeur::davrel);
        QVERIFY(maison.copies().duJour(jourDuBanc));
        maison.donnees.ecrireUtilisateur("donnees/livres.json", "[");
        QVERIFY_THROWS_EXCEPTION(RessourceIllisible, static_cast<void>(maison.copies()));
        const RetourAuDemarrage retour(maison.donnees.stockage(), maison.donnees.preferences());
        bool accepte = true;
        const auto proposer = [&] {
            accepte = retour.accepte("livres.json");
            return true;
        };
        const auto cliquer = [](const char *bouton) {
            return [bouton](QDialog *dialogue) { QVERIFY2(Ecran::cliquer(dialogue, bouton), bouton); };
        };
        bool nommee = false;
        const auto reprendre = [&nommee](QDialog *dialogue) {
            nommee = Ecran::controle(dialogue, "Copies gardées");
            QVERIFY(Ecran::cliquer(dialogue, "Reprendre cette copie"));
        };
        QVERIFY(Dialogues::fairePuisRepondre(proposer, {cliquer("Fermer")}));
        QVERIFY(!accepte && retour.possible());
        QString dit;
        QVERIFY(
            Dialogues::fairePuisRepondre(proposer, {cliquer("Revenir à une copie…"), reprendre, BancEcran::lire(dit)}));
        QVERIFY(accepte && nommee);
        QVERIFY2(lisible(dit).contains("reste dans l’archive : le numéro de facture « zéro »."), qPrintable(dit));
        QCOMPARE(maison.donnees.lireUtilisateur(dit.sliced(dit.indexOf("donnees.illisible")) + "/livres.json"), "[");
        QCOMPARE(Catalogue::charge(maison.ressources(), maison.donnees.stockage())->donnees().livres,
                 maison.donnees.livres);
    }

    // One that leads nowhere today is not replaced behind the user's back.
    void retourAuDemarrageDUnLien()
    {
        Maison maison;
        maison.demarrer();
        QVERIFY(maison.copies().duJour(jourDuBanc));
        QDir dossier(maison.donnees.cheminUtilisateur());
        QVERIFY(dossier.rename("donnees", "ailleurs") && QFile::link("ailleurs", dossier.filePath("donnees")));
        const RetourAuDemarrage retour(maison.donnees.stockage(), maison.donnees.preferences());
        QString dit;
        const auto lire = [&](QDialog *boite) {
            dit = lisible(qobject_cast<QMessageBox *>(boite)->informativeText());
            boite->reject();
        };
        QVERIFY(Dialogues::fairePuisRepondre([&] { return !retour.accepte("livres.json"); }, {lire}));
        QCOMPARE(dit, "Le lien « donnees » sera mis de côté, et un dossier ordinaire prendra sa place.");
        QVERIFY(retour.possible() && dossier.rename("ailleurs", "debranche"));
        QVERIFY(!RetourAuDemarrage(maison.donnees.stockage(), maison.donnees.preferences()).possible());
    }

    void emporter()
    {
        Maison depart;
        depart.donnees.livres[0].titre = "Le Phare de sel";
        depart.donnees.livres.removeLast();
        NumerotationFactures{depart.donnees.preferences()}.retenir("2026-004", Vendeur::davrel);
        depart.demarrer();
        const QString archive = depart.donnees.cheminUtilisateur("../emporte.zip");
        QVERIFY(depart.choisirUnFichier(exporter, archive).startsWith("Vos données sont dans « emporte.zip »."));

        Maison arrivee;
        arrivee.demarrer();
        NumerotationFactures{arrivee.donnees.preferences()}.retenir("2026-009", Vendeur::davrel);
        arrivee.commander("france");
        QCOMPARE(arrivee.choisirUnFichier(importer, archive), "");
        QDialog *feuille = Dialogues::devant();
        QVERIFY(feuille);
        for (const char *phrase :
             {"Faite le 2 mars 2026 par Quillet 0.1.0 : 3 livres, 1 vendeur.", "Livre 1 (titre)", "Livre 4",
              "Ce que vous avez aujourd’hui sera gardé : « Revenir à une copie… » le "
              "rendra. La commande en cours sera vidée."})
            QVERIFY2(Ecran::montre(feuille, phrase), phrase);
        const auto *numeros = qobject_cast<QCheckBox *>(Ecran::controle(
            feuille, "Reprendre les numéros de " + arrivee.donnees.reglages.identite(Vendeur::davrel)->nom));
        QVERIFY(numeros && !numeros->isChecked()); // they would go back
        QVERIFY(Ecran::cliquer(feuille, "Importer"));
        QVERIFY(!Dialogues::devant());
        QVERIFY(arrivee.app->commande().bon().estVide());
        QCOMPARE(arrivee.app->commande().bon().codeDestination, vers("france"));
        QVERIFY(!arrivee.app->commande().peutRendre()); // the same numbers may be other books
        QVERIFY(Ecran::controle(&arrivee.app->fenetre(), "Le Phare de sel"));
        QCOMPARE(arrivee.dernier(), "2026-009");

        QList<Copie> copies = arrivee.copies().liste(); // today's may be among them
        copies.removeIf([](const Copie &copie) { return !copie.avantReprise; });
        QCOMPARE(copies.size(), 1);
        arrivee.choisir(revenir);
        QVERIFY(Ecran::montre(Dialogues::devant(), "Livres : 1 ajouté, 1 changé"));
        const QString seconde = copies[0].moment.toString("H:mm:ss"); // two of a minute differ
        QVERIFY(TextesReprise::copie(copies[0]).contains(seconde));
        QVERIFY(Ecran::cliquer(Dialogues::devant(), "Voir la copie : " + TextesReprise::copie(copies[0])));
        QVERIFY(Ecran::cliquer(Dialogues::devant(), "Reprendre cette copie"));
        QVERIFY(!Dialogues::devant());
        QVERIFY(Ecran::controle(&arrivee.app->fenetre(), "Livre 1"));
    }

    void refuser()
    {
        Maison maison;
        maison.demarrer();
        const QString archive = maison.donnees.cheminUtilisateur("../photo.zip");
        Fichier::ecrire(archive, "une photo");
        QCOMPARE(maison.choisirUnFichier(importer, archive),
                 "Cette archive ne peut pas être reprise : ce n’est pas une archive zip, ou elle est incomplète.");
        const QString absent = maison.donnees.cheminUtilisateur("absent/a.zip");
        QCOMPARE(maison.choisirUnFichier(exporter, absent),
                 "Vos données n’ont pas été exportées.\n" + absent + " : fichier introuvable");
    }

    void copieDuJour()
    {
        Maison maison;
        maison.demarrer();
        QTRY_COMPARE(maison.copies().liste().size(), 1);
        QCOMPARE(maison.copies().liste()[0].moment.date(), maison.jour);
        maison.choisir(revenir);
        QVERIFY(Ecran::montre(Dialogues::devant(), "2 mars 2026"));
        QVERIFY(Ecran::montre(Dialogues::devant(), "Comme maintenant"));
    }

    void pasDeCopiePendantLaLecture()
    {
        Maison maison;
        maison.demarrer();
        QTRY_COMPARE(maison.copies().liste().size(), 1);
        const QString archive = maison.copies().liste()[0].chemin;
        const auto changer = [&](Centimes prix) {
            Livre livre = maison.donnees.livres[0];
            livre.prix = prix;
            maison.app->catalogue().modifier({livre});
        };
        changer(Centimes{4100});
        QTimer guet;
        connect(&guet, &QTimer::timeout, this, [&] {
            const auto enAttente = [](const QWidget *fenetre) {
                return fenetre->isVisible() && fenetre->testAttribute(Qt::WA_DontShowOnScreen);
            };
            if (std::ranges::none_of(QApplication::topLevelWidgets(), enAttente))
                return;
            maison.jour = maison.jour.addDays(1);
            guet.stop();
            maison.app->contexte().jour.regarder();
        });
        guet.start();
        QCOMPARE(maison.choisirUnFichier(importer, archive), "");
        QVERIFY(!guet.isActive());
        changer(Centimes{4200});
        Dialogues::devant()->reject();
        QTRY_COMPARE(maison.copies().liste().size(), 2);
        const auto demeure = Demeure::de(maison.app->catalogue(), maison.donnees.preferences());
        const auto copie = Reprise::regarder(maison.copies().liste()[0].chemin, demeure, maison.jour);
        QCOMPARE(copie->donnees().livres[0].prix, Centimes{4200});
    }

    void copieManquee()
    {
        Maison maison;
        QVERIFY(QDir().mkpath(maison.donnees.cheminUtilisateur()));
        maison.donnees.ecrireUtilisateur("copies", "un fichier prend la place");
        maison.demarrer();
        QSignalSpy posee(&maison.app->fenetre(), &Fenetre::posee);
        QTRY_COMPARE(posee.size(), 1);
        const auto montree = [&] {
            maison.choisir(revenir);
            QDialog *feuille = Dialogues::devant();
            const auto estLa = [](const QLabel *etiquette) {
                return etiquette->isVisible() && etiquette->text().startsWith("La copie du jour n’a pas pu être faite");
            };
            const bool dite = std::ranges::any_of(feuille->findChildren<QLabel *>(), estLa);
            feuille->reject();
            return dite;
        };
        QTRY_VERIFY(montree());
    }
};

QTEST_MAIN(TestEchanges)
#include "tst_echanges.moc"
