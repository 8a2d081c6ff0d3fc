#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"

#include <QListView>
#include <QMessageBox>

using namespace Quillet;

namespace {

const QString lireListe = "Lire une liste de livres…";
const QString ecrireListe = "Écrire la liste des livres…";

// A seller at home, with own data.
struct Maison : BancEcran
{
    Maison()
    {
        origine = Origine::utilisateur;
        demarrer();
        app->fenetre().contenu()->montrer(Rubrique::livres);
    }

    [[nodiscard]] QList<Livre> livres() const
    {
        return Catalogue::charge(ressources(), donnees.stockage())->donnees().livres;
    }
    [[nodiscard]] QString fichier() const { return donnees.cheminUtilisateur("../liste.csv"); }
    // The sheet, or what a message says instead.
    [[nodiscard]] QDialog *choisir(const QString &entree) const
    {
        if (!Ecran::choisirAuMenu(&app->fenetre(), entree))
            qFatal("Pas d’entrée : %s", qPrintable(entree));
        Dialogues::enregistrerSous(fichier())(Dialogues::devant());
        QCoreApplication::processEvents(); // the file is taken once the dialog has closed
        return Dialogues::devant();
    }
    [[nodiscard]] QDialog *montrer(const QByteArray &liste) const
    {
        Fichier::ecrire(fichier(), liste);
        return choisir(lireListe);
    }
};

QStringList rangees(const QDialog *feuille)
{
    const auto *liste = qobject_cast<QListView *>(Ecran::controle(feuille, "Livres de la liste"));
    QStringList rangees;
    for (int rang = 0; liste && rang < liste->model()->rowCount(); ++rang)
        rangees.append(lisible(liste->model()->index(rang, 0).data(Qt::AccessibleTextRole).toString()));
    return rangees;
}

} // namespace

// Books from a list, shown before they are taken, and into one.
class TestFeuilleListe : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void priseDUnGeste()
    {
        const Maison maison;
        const QList<Livre> avant = maison.livres();
        QDialog *feuille = maison.montrer(QString("Numéro;Titre;Auteur;Vendeur;Prix;Pages;Format;Rayon\n%1;;;;99;;;A\n"
                                                  ";Sel;Ada;%2;5;9;A5;B\n;Faux;Ada;%2;cinq;9;A5;B\n")
                                              .arg(avant[0].id)
                                              .arg(maison.donnees.reglages.identite(Vendeur::davrel)->nom)
                                              .toUtf8());
        QVERIFY(feuille);
        for (const char *phrase :
             {"1 livre à ajouter, 1 livre à changer, 1 ligne refusée.",
              "Colonnes lues : Numéro, Titre, Auteur, Vendeur, Prix (€), Pages, Format. Laissées de côté : « Rayon »."})
            QVERIFY2(Ecran::montre(feuille, phrase), phrase);
        const QStringList lues = rangees(feuille);
        QCOMPARE(lues.size(), 3);
        QVERIFY2(lues[0].startsWith("Refusé, Faux, ligne 4 : Prix (€) : Un prix s’écrit en chiffres"),
                 qPrintable(lues[0]));
        QVERIFY2(lues[1].startsWith("À changer, " + avant[0].titre + ", ligne 2 : Prix (€) : ")
                     && lues[1].endsWith("→ 99,00"),
                 qPrintable(lues[1]));
        QVERIFY2(lues[2].startsWith("À ajouter, Sel, ligne 3 : Ada · 5,00 €"), qPrintable(lues[2]));
        QCOMPARE(maison.livres(), avant); // nothing yet

        QVERIFY(Ecran::cliquer(feuille, "Prendre 2 livres"));
        const QList<Livre> apres = maison.livres();
        QCOMPARE(apres.size(), avant.size() + 1);
        QVERIFY(apres[0].prix == Centimes{9900} && apres.last().titre == "Sel");
        QVERIFY(Ecran::cliquer(&maison.app->fenetre(), "Annuler : liste de 2 livres"));
        QCOMPARE(maison.livres(), avant); // both at once
    }

    void ecriteEtRelue()
    {
        const Maison maison;
        QVERIFY(!maison.choisir(ecrireListe));
        QVERIFY(Fichier::lire(maison.fichier(), Fichier::Borne::donnees)->startsWith("\xef\xbb\xbf"));
        QDialog *feuille = maison.choisir(lireListe);
        QVERIFY(feuille && Ecran::montre(feuille, QString("%1 déjà pareils.").arg(maison.livres().size())));
        auto *prendre = Ecran::controle(feuille, "Rien à prendre");
        QVERIFY(prendre && !prendre->isEnabled() && rangees(feuille).isEmpty());
    }

    void ceQuiNEstPasUneListe()
    {
        const Maison maison;
        const auto *message = qobject_cast<QMessageBox *>(maison.montrer("PK\x03\x04..."));
        QVERIFY(message && message->text().contains("est un classeur"));
    }

    // The disk says no, or another computer was faster: the sheet stays, and says why.
    void refuseeParLeDisque()
    {
        const Maison maison;
        const QList<Livre> avant = maison.livres();
        QDialog *feuille = maison.montrer("Numéro;Prix\n" + QByteArray::number(avant[0].id) + ";99\n");
        QList<Livre> ailleurs = avant;
        ailleurs[1].titre = "Vu ailleurs";
        Fichier::ecrire(maison.donnees.cheminUtilisateur("donnees/livres.json"), Json::encoder(ailleurs));
        QVERIFY(Ecran::cliquer(feuille, "Prendre 1 livre"));
        QCOMPARE(maison.livres(), ailleurs);
        QCOMPARE(Dialogues::devant(), feuille);
        QVERIFY(Ecran::cliquer(feuille, "Les relire"));
        QVERIFY(Ecran::cliquer(feuille, "Prendre 1 livre"));
        ailleurs[0].prix = Centimes{9900};
        QCOMPARE(maison.livres(), ailleurs);
    }

    void pasLesLivresDUnExemple()
    {
        Maison maison;
        maison.origine = Origine::exemple;
        maison.demarrer();
        QDialog *feuille = maison.montrer("Numéro;Prix\n1;99\n");
        QVERIFY(feuille && !Ecran::controle(feuille, "Prendre 1 livre")->isEnabled());
    }
};

QTEST_MAIN(TestFeuilleListe)
#include "tst_feuille_liste.moc"
