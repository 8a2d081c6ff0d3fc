#include "tests/BancLivres.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"
#include "ui/couvertures/ChampCouverture.h"
#include "ui/livres/VueLivres.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTimer>

#include <functional>

using namespace Quillet;

namespace {

struct BancPersonnel : BancLivres
{
    BancPersonnel() : BancLivres(Origine::utilisateur) {}

    [[nodiscard]] QDialog *feuille(const char *touches) const
    {
        QTest::keySequence(liste(), QKeySequence(touches));
        QDialog *feuille = Dialogues::devant();
        if (!feuille || !QTest::qWaitForWindowActive(feuille))
            qFatal("Aucune feuille après : %s", touches);
        return feuille;
    }
    [[nodiscard]] static QLineEdit *champ(const QDialog *feuille, const QString &nom)
    {
        return qobject_cast<QLineEdit *>(Ecran::controle(feuille, nom));
    }
    // What is said on the sheet, beside its fields too.
    [[nodiscard]] static bool dit(const QDialog *feuille, const QString &phrase)
    {
        for (const auto *libelle : feuille->findChildren<QLabel *>())
            if (libelle->isVisible() && lisible(libelle->text()).startsWith(phrase))
                return true;
        return false;
    }
    // What has just been said has been read.
    static void onALu(const QDialog *feuille) { feuille->findChild<QTimer *>({}, Qt::FindDirectChildrenOnly)->stop(); }
    // Types and leaves the field.
    static bool remplir(QDialog *feuille, const QString &nom, const QString &texte)
    {
        if (QLineEdit *ici = champ(feuille, nom))
            ici->setFocus();
        if (!Ecran::taper(feuille, nom, texte))
            return false;
        QTest::keyClick(champ(feuille, nom), Qt::Key_Tab);
        return true;
    }
    [[nodiscard]] QString titres() const
    {
        QStringList titres;
        for (const Livre &livre : enregistres())
            titres.append(livre.titre);
        return titres.join(QStringLiteral(", "));
    }
    [[nodiscard]] QPoint ou(int rang, double hauteur) const
    {
        const QRect rangee = liste()->visualRect(liste()->model()->index(rang, 0));
        return {rangee.center().x(), rangee.top() + static_cast<int>(rangee.height() * hauteur)};
    }
    // The chosen book, dragged there and dropped.
    void tirer(const QPoint &la) const
    {
        const std::unique_ptr<QMimeData> tire(liste()->model()->mimeData({liste()->currentIndex()}));
        QDragEnterEvent entree(la, Qt::MoveAction, tire.get(), Qt::LeftButton, {});
        QDragMoveEvent passage(la, Qt::MoveAction, tire.get(), Qt::LeftButton, {});
        QDropEvent depot(la, Qt::MoveAction, tire.get(), Qt::LeftButton, {});
        for (QEvent *evenement : std::initializer_list<QEvent *>{&entree, &passage, &depot})
            QCoreApplication::sendEvent(liste()->viewport(), evenement);
    }
};

} // namespace

// The sellers' own books, added, edited, moved and taken away on the books' screen.
class TestLivresPersonnels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void chaqueChampEstEnregistre()
    {
        const auto texte = [](const QString Livre::*champ) { return [champ](const Livre &l) { return l.*champ; }; };
        using Lecture = std::function<QString(const Livre &)>;
        for (const auto &[champ, saisie, lu, attendu, refus] :
             Rangees<const char *, Lecture, const char *, const char *>{
                 {"Titre", " Un ", texte(&Livre::titre), "Un", ""},
                 {"Titre", " ", texte(&Livre::titre), "Livre 1", "À remplir."},
                 {"Titre complet", "", texte(&Livre::titreComplet), "Livre 1", ""},
                 {"Auteur", "Lui", texte(&Livre::auteur), "Lui", ""},
                 {"Prix", "16,5", [](const Livre &l) { return QString::number(l.prix.valeur()); }, "1650", ""},
                 {"Prix", "0", [](const Livre &l) { return QString::number(l.prix.valeur()); }, "1500",
                  "Un prix de plus de 0 €"},
                 {"Poids", "", [](const Livre &l) { return l.poids ? "pesé" : ""; }, "", ""},
                 {"Pages", "deux", [](const Livre &l) { return QString::number(l.pages); }, "200",
                  "Un nombre de pages s’écrit"},
                 {"ISBN", "978-0-00-000000-3", texte(&Livre::isbn), "978-0-00-000000-2",
                  "« 978-0-00-000000-3 » n’est pas un ISBN"},
                 {"Lien PayPal", "paypal.com", [](const Livre &l) { return l.lienPaypal ? "un" : ""; }, "",
                  "Une adresse web s’écrit"},
                 {"Lien PayPal", "http://paypal.com/x", [](const Livre &l) { return l.lienPaypal ? "un" : ""; }, "",
                  "Adresse https attendue"},
                 {"Lien PayPal", "https://paypal.com/x", [](const Livre &l) { return l.lienPaypal ? "un" : ""; }, "un",
                  ""},
             }) {
            const Rangee rangee(saisie);
            const BancPersonnel cas;
            QDialog *feuille = cas.feuille("F2");
            QVERIFY(cas.remplir(feuille, champ, saisie));
            QCOMPARE(lu(cas.enregistre(0)), attendu);
            QCOMPARE(cas.dit(feuille, refus), true);
            if (*refus)
                QCOMPARE(cas.champ(feuille, champ)->text(), saisie); // kept as it was typed
        }
    }

    // Beside the list too, where others' books keep what is given away.
    void laFicheSuitLesRegles()
    {
        for (const auto &[champ, refus] :
             Rangees<const char *>{{"Prix, en euros", "Un prix de plus"}, {"Poids, en grammes", "0 g"}}) {
            const BancPersonnel cas;
            cas.BancLivres::champ(champ)->setFocus();
            QVERIFY(Ecran::taper(cas.fenetre(), champ, "0"));
            cas.liste()->setFocus();
            QCOMPARE(cas.enregistres(), cas.donnees.livres);
            QVERIFY2(!cas.texte(refus).isEmpty(), refus);
            const BancLivres autre(Origine::dossier);
            autre.champ(champ)->setFocus();
            QVERIFY(Ecran::taper(autre.fenetre(), champ, "0"));
            autre.liste()->setFocus();
            QVERIFY(autre.enregistres() != autre.donnees.livres);
        }
    }

    void annulerDansLaFeuille()
    {
        const BancPersonnel cas;
        QDialog *feuille = cas.feuille("F2");
        QVERIFY(cas.remplir(feuille, "Titre", "Un"));
        QVERIFY(cas.remplir(feuille, "ISBN", "12"));
        QTest::keySequence(feuille, QKeySequence("Ctrl+PgDown"));
        QCOMPARE(cas.champ(feuille, "Titre")->text(), "Un"); // what was just refused has not been read
        cas.onALu(feuille);
        QTest::keySequence(feuille, QKeySequence("Ctrl+PgDown"));
        QCOMPARE(feuille->windowTitle(), "Livre 2");
        QCOMPARE(cas.courant(), "Livre 2");
        QCOMPARE(cas.champ(feuille, "ISBN")->text(), "978-0-00-000000-2");
        QVERIFY(cas.remplir(feuille, "Auteur", "Elle"));
        QVERIFY(Ecran::cliquer(feuille, "Brique"));
        QVERIFY(Ecran::controle(feuille, "Annuler : couleur de « Livre 2 »"));
        for (int fois = 0; fois < 3; ++fois)
            QTest::keySequence(feuille, QKeySequence::Undo);
        QCOMPARE(feuille->windowTitle(), "Livre 1"); // where the last one undone was typed
        QCOMPARE(cas.enregistres(), cas.donnees.livres);
        QTest::keySequence(feuille, QKeySequence::Redo);
        QCOMPARE(cas.enregistre(0).titre, "Un");
        QTest::keyClick(feuille, Qt::Key_Escape);
        QVERIFY(!feuille->isVisible());
        QCOMPARE(cas.courant(), "Un");
    }

    // Nothing typed is lost, and leaving tries once more.
    void echecDit()
    {
        const BancPersonnel cas;
        QDialog *feuille = cas.feuille("F2");
        {
            const DisquePlein plein;
            QVERIFY(cas.remplir(feuille, "Titre", "Un"));
            QVERIFY(Ecran::cliquer(feuille, "Fermer"));
        }
        QVERIFY(feuille->isVisible());
        QVERIFY(cas.dit(feuille, "Modification non enregistrée : "));
        QCOMPARE(cas.champ(feuille, "Titre")->text(), "Un");
        QCOMPARE(cas.enregistres(), cas.donnees.livres);
        cas.onALu(feuille);
        feuille->reject();
        QVERIFY(!feuille->isVisible());
        QCOMPARE(cas.enregistre(0).titre, "Un");
    }

    // Read again from the sheet that hides the window's own line: what was typed is saved over it, or said.
    void changesAilleurs()
    {
        using Ailleurs = std::function<void(QList<Livre> &)>;
        const Ailleurs unPrix = [](QList<Livre> &livres) { livres[0].prix = Centimes{7}; };
        const Ailleurs unTitre = [](QList<Livre> &livres) { livres[0].titre = "Autre"; };
        const Ailleurs unRetrait = [](QList<Livre> &livres) { livres.removeFirst(); };
        for (const auto &[touches, ailleurs, encore, titres, dite] :
             Rangees<Ailleurs, const char *, const char *, const char *>{
                 {"F2", unPrix, "", "Un, Livre 2, Livre 3, Livre 4", ""},
                 {"F2", unTitre, "", "Autre, Livre 2, Livre 3, Livre 4", "Changé ailleurs aussi, donc non"},
                 {"F2", unRetrait, "", "Livre 2, Livre 3, Livre 4", "Ce livre a été retiré ailleurs"},
                 {"Ctrl+D", unTitre, "Ajouter le livre", "Autre, Livre 2, Livre 3, Livre 4, Un", ""},
             }) {
            const Rangee rangee(touches);
            const BancPersonnel cas;
            QDialog *feuille = cas.feuille(touches);
            QList<Livre> livres = cas.donnees.livres;
            ailleurs(livres);
            Fichier::ecrire(cas.donnees.cheminUtilisateur("donnees/livres.json"), Json::encoder(livres));
            QVERIFY(cas.remplir(feuille, "Titre", "Un"));
            if (*encore)
                QVERIFY(Ecran::cliquer(feuille, encore));
            QCOMPARE(cas.enregistres(), livres);
            QVERIFY(Ecran::cliquer(feuille, "Les relire"));
            QVERIFY(!Ecran::controle(feuille, "Les relire"));
            if (*encore)
                QVERIFY(Ecran::cliquer(feuille, encore));
            QCOMPARE(cas.titres(), titres);
            QVERIFY(!*dite || cas.dit(feuille, dite));
        }
    }

    // All that was typed outlasts a second save that fails; a cover from elsewhere is not written over.
    void changesAilleursAvecCouverture()
    {
        for (const auto &[posee, dite] : Rangees<const char *>{{"sans-image.jpg", "Modification non enregistrée : "},
                                                               {"autre.jpg", "Changé ailleurs aussi"}}) {
            const Rangee rangee(dite);
            const BancPersonnel cas;
            QDialog *feuille = cas.feuille("F2");
            QList<Livre> livres = cas.donnees.livres;
            livres[0].prix = Centimes{7};
            livres[0].couverture = posee;
            const bool libre = livres[0].couverture == cas.donnees.livres[0].couverture;
            Fichier::ecrire(cas.donnees.cheminUtilisateur("donnees/livres.json"), Json::encoder(livres));
            emit feuille->findChild<ChampCouverture *>()->choisie({.octets = "a", .extension = "png", .teinte = {}});
            QVERIFY(cas.remplir(feuille, "Titre", "Un"));
            {
                const DisquePlein plein(libre ? 16 : RLIM_INFINITY);
                QVERIFY(Ecran::cliquer(feuille, "Les relire"));
            }
            QVERIFY(cas.dit(feuille, dite));
            QCOMPARE(cas.champ(feuille, "Titre")->text(), "Un");
            cas.onALu(feuille);
            feuille->reject();
            QCOMPARE(cas.enregistre(0).titre, "Un");
            QCOMPARE(cas.enregistre(0).prix, Centimes{7});
            QCOMPARE(cas.enregistre(0).couverture == posee, !libre);
        }
    }

    void ajouter()
    {
        const BancPersonnel cas;
        QDialog *feuille = cas.feuille("Ctrl+N");
        QVERIFY(!cas.dit(feuille, "À remplir."));
        QCOMPARE(cas.champ(feuille, "Auteur")->text(), "Une autrice"); // as the last book
        QVERIFY(cas.remplir(feuille, "Pages", "zut"));
        QVERIFY(Ecran::cliquer(feuille, "Ajouter le livre"));
        for (const char *refus : {"À remplir.", "Il faut un prix.", "Un nombre de pages s’écrit"})
            QVERIFY2(cas.dit(feuille, refus), refus);
        QVERIFY(cas.champ(feuille, "Titre")->hasFocus());
        for (const auto &[champ, saisie] : {std::pair("Titre", "Neuf"), {"Prix", "12"}, {"Pages", "80"}})
            QVERIFY(cas.remplir(feuille, champ, saisie));
        QVERIFY(Ecran::choisir(feuille, "Vendeur", "Vendeur 2"));
        {
            const DisquePlein plein;
            QVERIFY(Ecran::cliquer(feuille, "Ajouter le livre"));
            QVERIFY(cas.dit(feuille, "Modification non enregistrée : "));
        }
        QVERIFY(Ecran::cliquer(feuille, "Ajouter le livre"));
        QVERIFY(!feuille->isVisible());
        const Livre livre = cas.enregistre(4);
        QCOMPARE(livre.id, 5);
        QCOMPARE(livre.titreComplet, "Neuf");
        QCOMPARE(livre.vendeur, Vendeur::mireva);
        QCOMPARE(cas.courant(), "Neuf");
        QCOMPARE(cas.fenetre()->focusWidget(), cas.liste());
        QVERIFY(cas.cliquer("Annuler : ajout de « Neuf »"));
        QCOMPARE(cas.enregistres(), cas.donnees.livres);
    }

    void abandonner()
    {
        const BancPersonnel cas;
        QDialog *feuille = cas.feuille("Ctrl+N");
        feuille->reject();
        QVERIFY(!feuille->isVisible()); // nothing was typed
        feuille = cas.feuille("Ctrl+N");
        QVERIFY(cas.remplir(feuille, "Titre", "Neuf"));
        for (const char *reponse : {"Continuer", "Abandonner"}) {
            QCOMPARE(Dialogues::devant(), feuille);
            feuille->reject();
            QVERIFY(Ecran::cliquer(Dialogues::devant(), reponse));
        }
        QVERIFY(!Dialogues::devant());
    }

    void dupliquer()
    {
        const BancPersonnel cas;
        cas.app->commande().ajuster(cas.donnees.livres[0], 1);
        QDialog *feuille = cas.feuille("Ctrl+D");
        QCOMPARE(cas.champ(feuille, "ISBN")->text(), "");
        QVERIFY(Ecran::cliquer(feuille, "Ajouter le livre"));
        Livre attendu = cas.donnees.livres[0];
        attendu.id = 5;
        attendu.titre += " (copie)";
        attendu.titreComplet += " (copie)";
        attendu.isbn.clear();
        attendu.prixPaypal.reset();
        QCOMPARE(cas.enregistre(4), attendu);
    }

    // Nothing leaves without the picture that is on its way.
    void couvertureEnLecture()
    {
        for (const auto &[geste, touches] : Rangees<const char *>{{"Ajouter le livre", "Ctrl+D"},
                                                                  {"Livre suivant", "F2"},
                                                                  {"Annuler : ailleurs", "F2"}, // on another book
                                                                  {"Fermer", "F2"}}) {
            const Rangee rangee(geste);
            const BancPersonnel cas;
            Livre autre = cas.donnees.livres[1];
            autre.pages = 3;
            cas.app->contexte().historique.modifier(autre, "ailleurs");
            const QList<Livre> avant = cas.enregistres();
            QDialog *feuille = cas.feuille(touches);
            const QString titre = feuille->windowTitle();
            auto *image = new QMimeData;
            image->setData("image/png", "image");
            QGuiApplication::clipboard()->setMimeData(image);
            QVERIFY(Ecran::cliquer(feuille, "Coller l’image"));
            QVERIFY(Ecran::cliquer(feuille, geste));
            QVERIFY(feuille->isVisible() && feuille->windowTitle() == titre);
            QVERIFY(cas.dit(feuille, "L’image est encore en cours de lecture"));
            QCOMPARE(cas.enregistres(), avant);
        }
    }

    // A cover proposes its colour, but not in place of one that was chosen.
    void couleurDeLaCouverture()
    {
        const BancPersonnel cas;
        auto *champ = cas.feuille("F2")->findChild<ChampCouverture *>();
        emit champ->choisie({.octets = "a", .extension = "png", .teinte = {1, 2, 3}});
        QVERIFY(!cas.enregistre(0).couverture.isEmpty());
        QCOMPARE(cas.enregistre(0).teinte, cas.donnees.livres[0].teinte);

        QDialog *nouveau = (Dialogues::devant()->reject(), cas.feuille("Ctrl+D"));
        for (qint64 teinte : {4, 5})
            emit nouveau->findChild<ChampCouverture *>()->choisie(
                {.octets = "b", .extension = "png", .teinte = {teinte, 0, 0}});
        QVERIFY(Ecran::cliquer(nouveau, "Ajouter le livre"));
        QCOMPARE(cas.enregistre(4).teinte, (QList<qint64>{5, 0, 0}));
    }

    // The neighbour is chosen, the order follows, and the book can be had back where it was.
    void retirer()
    {
        const BancPersonnel cas;
        cas.commander("france");
        QTest::keyClick(cas.liste(), Qt::Key_Delete);
        QCOMPARE(cas.titres(), "Livre 2, Livre 3, Livre 4");
        QCOMPARE(cas.courant(), "Livre 2");
        QVERIFY(cas.app->commande().bon().quantites.isEmpty());
        QCOMPARE(cas.texte("« Livre 1 »"), "« Livre 1 » est retiré.");
        QVERIFY(Ecran::cliquer(cas.fenetre(), "Annuler"));
        QCOMPARE(cas.enregistres(), cas.donnees.livres);
        QCOMPARE(cas.app->commande().bon().quantite(cas.donnees.livres[0]), 2);
        QCOMPARE(cas.courant(), "Livre 1");
        QVERIFY(cas.texte("« Livre 1 »").isEmpty());
        for (int fois = 0; fois < 5; ++fois)
            QTest::keyClick(cas.liste(), Qt::Key_Delete);
        QCOMPARE(cas.titres(), "");
        QVERIFY(cas.texte("Le catalogue est vide.") != "");
        QVERIFY(cas.cliquer("Ajouter un livre…"));
    }

    // Within the seller's group (1, 2, 4, then 3), beside the books that are shown; the book stays chosen.
    void autreOrdre()
    {
        const auto tirer = [](int rang, double hauteur) {
            return [=](const BancPersonnel &cas) { cas.tirer(cas.ou(rang, hauteur)); };
        };
        const auto touche = [](Qt::Key quoi) {
            return [=](const BancPersonnel &cas) { QTest::keyClick(cas.liste(), quoi, Qt::AltModifier); };
        };
        const char *avant = "Livre 1, Livre 2, Livre 3, Livre 4";
        for (const auto &[geste, filtre, rang, faire, apres] :
             Rangees<const char *, int, std::function<void(const BancPersonnel &)>, const char *>{
                 {"monter", "Tous les livres", 2, touche(Qt::Key_Up), "Livre 1, Livre 4, Livre 2, Livre 3"},
                 {"monter le premier", "Tous les livres", 0, touche(Qt::Key_Up), avant},
                 {"descendre", "Tous les livres", 0, touche(Qt::Key_Down), "Livre 2, Livre 1, Livre 3, Livre 4"},
                 {"descendre le dernier du vendeur", "Tous les livres", 2, touche(Qt::Key_Down), avant},
                 {"seul de son vendeur", "Tous les livres", 3, touche(Qt::Key_Up), avant},
                 {"descendre parmi les montrés", "À reporter", 0, touche(Qt::Key_Down),
                  "Livre 2, Livre 3, Livre 4, Livre 1"},
                 {"tirer au-dessus", "Tous les livres", 2, tirer(0, 0.5), "Livre 4, Livre 1, Livre 2, Livre 3"},
                 {"tirer au-dessous", "Tous les livres", 0, tirer(1, 0.9), "Livre 2, Livre 1, Livre 3, Livre 4"},
                 {"tirer chez l’autre", "Tous les livres", 0, tirer(3, 0.9), avant},
             }) {
            const Rangee rangee(geste);
            const BancPersonnel cas;
            QVERIFY(Ecran::choisir(cas.fenetre(), "État", filtre));
            cas.choisir(rang);
            const QString choisi = cas.courant();
            faire(cas);
            QCOMPARE(cas.titres(), apres);
            QCOMPARE(cas.courant(), choisi);
            QCOMPARE(Ecran::controle(cas.fenetre(), "Annuler : place de « " + choisi + " »") != nullptr,
                     QString(apres) != avant);
        }
    }

    // Other data are the program's, or the administrator's.
    void desAutresRien()
    {
        const BancLivres cas(Origine::exemple);
        for (const char *touches : {"Ctrl+N", "F2", "Ctrl+D", "Del", "Return", "Alt+Down"})
            QTest::keySequence(cas.liste(), QKeySequence(touches));
        QVERIFY(!Dialogues::devant());
        QVERIFY(!Ecran::controle(cas.fenetre(), "Ajouter un livre…"));
        QVERIFY(!Ecran::controle(cas.fenetre(), "Modifier…"));
        QSignalSpy siens(cas.fenetre()->findChild<VueLivres *>(), &VueLivres::mettreLesSiens);
        QVERIFY(cas.cliquer("Mettre les vôtres…"));
        QCOMPARE(siens.count(), 1);
        QCOMPARE(cas.enregistres(), cas.donnees.livres);
        const BancPersonnel leurs;
        QVERIFY(!Ecran::controle(leurs.fenetre(), "Revenir aux valeurs d’origine…"));
        QVERIFY(!Ecran::controle(leurs.fenetre(), "Mettre les vôtres…"));
    }
};

QTEST_MAIN(TestLivresPersonnels)
#include "tst_livres_personnels.moc"
