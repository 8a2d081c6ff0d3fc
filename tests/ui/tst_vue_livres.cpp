#include "tests/BancLivres.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"
#include "ui/ListeRubriques.h"
#include "ui/livres/VueLivres.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include <functional>

using namespace Quillet;

namespace {

const QString poids = "Poids, en grammes";
const QString nonEnregistree = "Modification non enregistrée : ";

// And does not leave the field.
void taperLePrix(const BancLivres &cas, const char *prix = "16")
{
    cas.champ(champDuPrix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, prix));
}

void cliquerLeSecond(const BancLivres &cas)
{
    QTest::mouseClick(cas.liste()->viewport(), Qt::LeftButton, {},
                      cas.liste()->visualRect(cas.liste()->model()->index(1, 0)).center());
}

} // namespace

// The books' screen: the list and what narrows it, edits through the real fields into the real file.
class TestVueLivres : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void saisir()
    {
        const auto prix = [](const Livre &livre) { return livre.prix.valeur(); };
        const auto pesee = [](const Livre &livre) { return livre.poids.value_or(Grammes{-1}).valeur(); };
        for (const auto &[saisie, champ, valeur, affiche, enregistre, refus] :
             Rangees<QString, qint64 (*)(const Livre &), const char *, qint64, const char *>{
                 {"16,5", champDuPrix, prix, "16,50", 1650, ""},
                 {"-2", champDuPrix, prix, "15,00", 1500, "Un prix ne peut pas être négatif."},
                 {"", poids, pesee, "", -1, ""},
                 {"2 kg", poids, pesee, "200", 200, "Un poids s’écrit en grammes entiers, comme 355."},
             })
            for (const auto touche : {Qt::Key_Return, Qt::Key_Tab}) {
                const Rangee rangee(saisie);
                const BancLivres cas;
                cas.champ(champ)->setFocus();
                QVERIFY(Ecran::taper(cas.fenetre(), champ, saisie));
                QCOMPARE(cas.texte("Un p"), refus); // said while it is typed
                QTest::keyClick(cas.champ(champ), touche);
                QCOMPARE(lisible(cas.champ(champ)->text()), affiche);
                QCOMPARE(cas.texte("Un p"), refus); // and still said afterwards
                QCOMPARE(valeur(cas.enregistre(0)), enregistre);
            }
    }

    // Screen, memory and file agree afterwards, and the next attempt goes through.
    void echecDit()
    {
        const char *prix = "le prix, par sa saisie";
        for (const char *bouton : {prix, "Disponible", "Reporter, France", "Tout reporter", "Garder, France",
                                   "Annuler : disponibilité de « Livre 1 »"}) {
            const Rangee rangee(bouton);
            const BancLivres cas;
            const auto geste = [&] {
                if (bouton != prix)
                    return cas.cliquer(bouton);
                taperLePrix(cas);
                QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Return);
                return true;
            };
            if (QByteArray(bouton).startsWith("Annuler"))
                QVERIFY(cas.cliquer("Disponible"));
            const auto etat = [&] {
                QStringList textes{cas.champ(champDuPrix)->text()};
                for (const auto *libelle : cas.fenetre()->findChildren<QLabel *>())
                    if (libelle->isVisible() && !libelle->text().startsWith(nonEnregistree))
                        textes.append(libelle->text());
                const auto *disponible = qobject_cast<QAbstractButton *>(Ecran::controle(cas.fenetre(), "Disponible"));
                return std::pair(textes, disponible->isChecked());
            };
            const auto avant = etat();
            const Livre fichier = cas.enregistre(0);
            {
                const DisquePlein plein;
                QVERIFY(geste());
            }
            const QString echec = cas.texte(nonEnregistree);
            QVERIFY2(echec.contains("livres-modifies.json"), qPrintable(echec));
            QCOMPARE(etat(), avant);
            QCOMPARE(cas.enregistre(0), fichier);

            QVERIFY(geste());
            QVERIFY(cas.texte(nonEnregistree).isEmpty());
            QVERIFY(cas.enregistre(0) != fichier);
        }
    }

    // Another book, another screen, or no window any more: what was typed counts, in the order too.
    void laSaisieNEstPasPerdue()
    {
        for (const auto &[nom, sortir] : Rangees<void (*)(const BancLivres &)>{
                 {"un autre livre", cliquerLeSecond},
                 {"un autre écran",
                  [](const BancLivres &cas) { cas.fenetre()->contenu()->montrer(Rubrique::commande); }},
                 {"fermer", [](const BancLivres &cas) { cas.fenetre()->close(); }},
             }) {
            const Rangee rangee(nom);
            const BancLivres cas;
            cas.commander("france");
            taperLePrix(cas);
            sortir(cas);
            QCOMPARE(cas.enregistre(0).prix, Centimes{1600});
            QCOMPARE(cas.enregistre(1).prix, Centimes{2200});
            cas.fenetre()->contenu()->montrer(Rubrique::commande);
            if (cas.fenetre()->isVisible())
                QCOMPARE(lisible(Ecran::valeurEnFaceDe(cas.fenetre(), "Sous-total")), "32,00 €");
        }
    }

    // The click that leaves the field also shows another book.
    void lEchecResteDit()
    {
        const BancLivres cas;
        taperLePrix(cas);
        const DisquePlein plein;
        cliquerLeSecond(cas);
        QVERIFY(!cas.texte(nonEnregistree).isEmpty());
    }

    // A screen that could not keep what was typed stays to say so, by whatever way one leaves; once more leaves it, but
    // not in the same breath.
    void sortirSansPerdre()
    {
        const auto partie = [](const BancLivres &cas) {
            QCoreApplication::sendPostedEvents();
            return cas.fenetre()->contenu()->rubrique() == Rubrique::commande;
        };
        const QList<std::function<bool(const BancLivres &)>> sorties{
            [](const BancLivres &cas) {
                QCoreApplication::sendPostedEvents();
                return cas.fenetre()->close();
            },
            [=](const BancLivres &cas) {
                cas.fenetre()->contenu()->montrer(Rubrique::commande);
                return partie(cas);
            },
            [=](const BancLivres &cas) { // the click takes the focus from the field first
                auto *rubriques = cas.fenetre()->findChild<ListeRubriques *>();
                QTest::mouseClick(rubriques->viewport(), Qt::LeftButton, {},
                                  rubriques->visualItemRect(rubriques->item(0)).center());
                return partie(cas);
            },
        };
        for (const auto &sortir : sorties)
            for (const auto &[saisie, dit] :
                 Rangees<QString>{{"16", nonEnregistree}, {"zut", "Un prix s’écrit en chiffres"}}) {
                const Rangee rangee(saisie);
                const BancLivres cas;
                taperLePrix(cas, saisie);
                const DisquePlein plein;
                auto *lecture =
                    cas.fenetre()->findChild<VueLivres *>()->findChild<QTimer *>({}, Qt::FindDirectChildrenOnly);
                lecture->setInterval(std::chrono::hours(1));
                QVERIFY(!sortir(cas) && !sortir(cas));
                QVERIFY(!cas.texte(dit).isEmpty());
                lecture->stop(); // it has been read
                QVERIFY(sortir(cas));
            }
    }

    void annulerAuClavier()
    {
        const BancLivres cas;
        QVERIFY(cas.cliquer("Disponible"));
        QVERIFY(!Ecran::controle(cas.fenetre(), "Rétablir")->isEnabled());
        taperLePrix(cas);
        QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Return);
        QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, "17"));
        // First the typing, then what was saved, from the same field.
        while (cas.champ(champDuPrix)->isUndoAvailable())
            QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(cas.enregistre(0).prix, Centimes{1600});
        QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(cas.champ(champDuPrix)->text(), "15,00");
        QCOMPARE(cas.enregistre(0).prix, Centimes{1500});
        cas.choisir(2);
        QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, "7"));
        QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(cas.courant(), "Livre 4"); // what is being typed is not swept away
        QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Escape);
        QWidget *rubriques = Ecran::controle(cas.fenetre(), "Rubriques");
        rubriques->setFocus(); // where the seller comes from
        QTest::keyClick(rubriques, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(cas.courant(), "Livre 1"); // what changed is shown
        QCOMPARE(cas.enregistre(0), cas.donnees.livres[0]);
        QVERIFY(!Ecran::controle(cas.fenetre(), "Annuler")->isEnabled());
        QTest::keyClick(cas.liste(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!cas.enregistre(0).disponible);
    }

    void revenirAuxValeurs()
    {
        const BancLivres cas;
        const QString revenir = "Revenir aux valeurs d’origine…";
        QString question;
        bool repondu = false;
        const auto repondre = [&](const char *reponse) {
            return [&, reponse](QDialog *dialogue) {
                const auto *message = qobject_cast<QMessageBox *>(dialogue);
                question = message->text() + message->informativeText();
                repondu = Ecran::cliquer(dialogue, reponse);
                if (!repondu)
                    dialogue->reject();
            };
        };
        QVERIFY(Dialogues::cliquerPuisRepondre(cas.fenetre(), revenir, {repondre("OK")}));
        QVERIFY(repondu);
        QVERIFY2(question.contains("déjà leurs valeurs d’origine"), qPrintable(question));
        QVERIFY(cas.cliquer("Tout reporter"));
        const Livre modifie = cas.enregistre(0);
        QVERIFY(Dialogues::cliquerPuisRepondre(cas.fenetre(), revenir, {Dialogues::renoncer()}));
        QCOMPARE(cas.enregistre(0), modifie);
        QVERIFY(Dialogues::cliquerPuisRepondre(cas.fenetre(), revenir, {repondre("Revenir aux valeurs d’origine")}));
        QVERIFY(repondu);
        QVERIFY2(question.contains("Livre 1 : 3 prix reportés"), qPrintable(question));
        QVERIFY(!QFile::exists(cas.donnees.cheminUtilisateur("livres-modifies.json")));
        QVERIFY(cas.cliquer("Annuler : retour aux valeurs d’origine"));
        QCOMPARE(cas.enregistre(0), modifie);
    }

    void listeFiltree()
    {
        const BancLivres cas;
        const auto titres = [&] {
            QStringList finales;
            for (int rang = 0; rang < cas.liste()->model()->rowCount(); ++rang)
                finales.append(cas.liste()->model()->index(rang, 0).data().toString().last(1));
            return finales.join(u' ');
        };
        QVERIFY(Ecran::choisir(cas.fenetre(), "État", "À reporter"));
        QCOMPARE(titres(), "1 4 3");
        QVERIFY(cas.cliquer("Tout reporter"));
        QCOMPARE(titres(), "1 4 3"); // the list does not move under the hand
        QVERIFY(Ecran::choisir(cas.fenetre(), "État", "Épuisés"));
        QCOMPARE(titres(), "4");
        QCOMPARE(cas.courant(), "Livre 4");
        QVERIFY(cas.cliquer("Mireva"));
        QCOMPARE(cas.texte("Aucun livre ne"), "Aucun livre ne répond à la recherche et aux filtres.");
        QVERIFY(cas.cliquer("Annuler : 3 prix reportés de « Livre 1 »"));
        QCOMPARE(titres(), "1"); // what changed is shown, whatever the filters say
    }
};

QTEST_MAIN(TestVueLivres)
#include "tst_vue_livres.moc"
