#include "tests/BancLivres.h"
#include "tests/DisquePlein.h"
#include "ui/ListeRubriques.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

#include <functional>

using namespace Quillet;

// The books' screen: the list and what narrows it, edits through the real fields into the real file.
class TestVueLivres : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void saisir_data();
    void saisir();
    void echecDit_data();
    void echecDit();
    void laSaisieNEstPasPerdue();
    void lEchecResteDit();
    void sortirSansPerdre();
    void annulerAuClavier();
    void revenirAuxValeurs();
    void listeFiltree();
};

namespace {

const QString poids = QStringLiteral("Poids, en grammes");
const QString nonEnregistree = QStringLiteral("Modification non enregistrée : ");

} // namespace

void TestVueLivres::saisir_data()
{
    QTest::addColumn<QString>("champ");
    QTest::addColumn<QString>("saisie");
    QTest::addColumn<QString>("affiche");
    QTest::addColumn<qint64>("enregistre");
    QTest::addColumn<QString>("refus");
    QTest::newRow("virgule") << champDuPrix << "16,5"
                             << "16,50" << qint64{1650} << "";
    QTest::newRow("prix refusé") << champDuPrix << "-2"
                                 << "15,00" << qint64{1500} << "Un prix ne peut pas être négatif.";
    QTest::newRow("plus pesé") << poids << ""
                               << "" << qint64{-1} << "";
    QTest::newRow("poids refusé") << poids << "2 kg"
                                  << "200" << qint64{200} << "Un poids s’écrit en grammes entiers, comme 355.";
}

void TestVueLivres::saisir()
{
    QFETCH(QString, champ);
    QFETCH(QString, saisie);
    QFETCH(QString, affiche);
    QFETCH(qint64, enregistre);
    QFETCH(QString, refus);
    for (const auto touche : {Qt::Key_Return, Qt::Key_Tab}) {
        const BancLivres cas;
        cas.champ(champ)->setFocus();
        QVERIFY(Ecran::taper(cas.fenetre(), champ, saisie));
        QCOMPARE(cas.texte(QStringLiteral("Un p")), refus); // said while it is typed
        QTest::keyClick(cas.champ(champ), touche);
        QCOMPARE(lisible(cas.champ(champ)->text()), affiche);
        QCOMPARE(cas.texte(QStringLiteral("Un p")), refus); // and still said afterwards
        const Livre livre = cas.enregistre(0);
        QCOMPARE(champ == champDuPrix ? livre.prix.valeur() : livre.poids.value_or(Grammes{-1}).valeur(), enregistre);
    }
}

void TestVueLivres::echecDit_data()
{
    QTest::addColumn<std::function<bool(const BancLivres &)>>("geste");
    const auto clic = [](const char *bouton) {
        return std::function([nom = QString::fromUtf8(bouton)](const BancLivres &cas) { return cas.cliquer(nom); });
    };
    QTest::newRow("prix") << std::function([](const BancLivres &cas) {
        cas.champ(champDuPrix)->setFocus();
        const bool tape = Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("16"));
        QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Return);
        return tape;
    });
    QTest::newRow("disponible") << clic("Disponible");
    QTest::newRow("reporter") << clic("Reporter, France");
    QTest::newRow("tout reporter") << clic("Tout reporter");
    QTest::newRow("garder") << clic("Garder, France");
    QTest::newRow("annuler") << clic("Annuler : disponibilité de « Livre 1 »");
}

// Screen, memory and file agree afterwards, and the next attempt goes through.
void TestVueLivres::echecDit()
{
    QFETCH(std::function<bool(const BancLivres &)>, geste);
    const BancLivres cas;
    if (QString::fromUtf8(QTest::currentDataTag()) == QStringLiteral("annuler"))
        QVERIFY(cas.cliquer(QStringLiteral("Disponible")));
    const auto etat = [&] {
        QStringList textes;
        for (const auto *libelle : cas.fenetre()->findChildren<QLabel *>())
            if (libelle->isVisible())
                textes.append(libelle->text());
        const auto *disponible =
            qobject_cast<QAbstractButton *>(Ecran::controle(cas.fenetre(), QStringLiteral("Disponible")));
        textes.append(cas.champ(champDuPrix)->text() + QString::number(disponible->isChecked()));
        return textes;
    };
    const QStringList avant = etat();
    const Livre fichier = cas.enregistre(0);
    {
        const DisquePlein plein;
        QVERIFY(geste(cas));
    }
    const QString echec = cas.texte(nonEnregistree);
    QVERIFY2(echec.contains(QStringLiteral("livres-modifies.json")), qPrintable(echec));
    QStringList apres = etat();
    QCOMPARE(apres.removeIf([](const QString &texte) { return texte.startsWith(QStringLiteral("Modification")); }), 1);
    QCOMPARE(apres, avant);
    QCOMPARE(cas.enregistre(0), fichier);

    QVERIFY(geste(cas));
    QVERIFY(cas.texte(nonEnregistree).isEmpty());
    QVERIFY(cas.enregistre(0) != fichier);
}

// Another book, another screen, or no window any more: what was typed counts, in the order too.
void TestVueLivres::laSaisieNEstPasPerdue()
{
    const QList<std::function<void(const BancLivres &)>> sorties{
        [](const BancLivres &cas) {
            QTest::mouseClick(cas.liste()->viewport(), Qt::LeftButton, {},
                              cas.liste()->visualRect(cas.liste()->model()->index(1, 0)).center());
        },
        [](const BancLivres &cas) {
            cas.fenetre()->contenu()->montrer(Rubrique::commande);
            QCOMPARE(lisible(Ecran::valeurEnFaceDe(cas.fenetre(), QStringLiteral("Sous-total"))),
                     QStringLiteral("32,00 €"));
        },
        [](const BancLivres &cas) { cas.fenetre()->close(); },
    };
    for (const auto &sortir : sorties) {
        const BancLivres cas;
        cas.commander(QStringLiteral("france"));
        cas.champ(champDuPrix)->setFocus();
        QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("16")));
        sortir(cas);
        QCOMPARE(cas.enregistre(0).prix, Centimes{1600});
        QCOMPARE(cas.enregistre(1).prix, Centimes{2200});
    }
}

// The click that leaves the field also shows another book.
void TestVueLivres::lEchecResteDit()
{
    const BancLivres cas;
    cas.champ(champDuPrix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("16")));
    const DisquePlein plein;
    QTest::mouseClick(cas.liste()->viewport(), Qt::LeftButton, {},
                      cas.liste()->visualRect(cas.liste()->model()->index(1, 0)).center());
    QVERIFY(!cas.texte(nonEnregistree).isEmpty());
}

// A screen that could not save what was typed stays to say so, by whatever way one leaves; once more leaves it.
void TestVueLivres::sortirSansPerdre()
{
    const auto partie = [](const BancLivres &cas) {
        QCoreApplication::sendPostedEvents();
        return cas.fenetre()->contenu()->rubrique() == Rubrique::commande;
    };
    const QList<std::function<bool(const BancLivres &)>> sorties{
        [](const BancLivres &cas) { return cas.fenetre()->close(); },
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
    for (const auto &sortir : sorties) {
        const BancLivres cas;
        cas.champ(champDuPrix)->setFocus();
        QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("16")));
        const DisquePlein plein;
        QVERIFY(!sortir(cas));
        QVERIFY(!cas.texte(nonEnregistree).isEmpty());
        QVERIFY(sortir(cas));
    }
}

void TestVueLivres::annulerAuClavier()
{
    const BancLivres cas;
    QVERIFY(cas.cliquer(QStringLiteral("Disponible")));
    QVERIFY(!Ecran::controle(cas.fenetre(), QStringLiteral("Rétablir"))->isEnabled());
    cas.champ(champDuPrix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("16")));
    QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Return);
    QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("17")));
    // First the typing, then what was saved, from the same field.
    while (cas.champ(champDuPrix)->isUndoAvailable())
        QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cas.enregistre(0).prix, Centimes{1600});
    QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cas.champ(champDuPrix)->text(), QStringLiteral("15,00"));
    QCOMPARE(cas.enregistre(0).prix, Centimes{1500});
    cas.choisir(2);
    QVERIFY(Ecran::taper(cas.fenetre(), champDuPrix, QStringLiteral("7")));
    QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 4")); // what is being typed is not swept away
    QTest::keyClick(cas.champ(champDuPrix), Qt::Key_Escape);
    QWidget *rubriques = Ecran::controle(cas.fenetre(), QStringLiteral("Rubriques"));
    rubriques->setFocus(); // where the seller comes from
    QTest::keyClick(rubriques, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 1")); // what changed is shown
    QCOMPARE(cas.enregistre(0), cas.donnees.livres[0]);
    QVERIFY(!Ecran::controle(cas.fenetre(), QStringLiteral("Annuler"))->isEnabled());
    QTest::keyClick(cas.liste(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!cas.enregistre(0).disponible);
}

void TestVueLivres::revenirAuxValeurs()
{
    const BancLivres cas;
    const QString revenir = QStringLiteral("Revenir aux valeurs d’origine…");
    QString question;
    const auto lire = [&question](QDialog *dialogue) {
        const auto *message = qobject_cast<QMessageBox *>(dialogue);
        question = message->text() + message->informativeText();
    };
    QVERIFY(Dialogues::cliquerPuisRepondre(cas.fenetre(), revenir, {[&](QDialog *dialogue) {
                                               lire(dialogue);
                                               dialogue->accept();
                                           }}));
    QVERIFY2(question.contains(QStringLiteral("déjà leurs valeurs d’origine")), qPrintable(question));
    QVERIFY(cas.cliquer(QStringLiteral("Tout reporter")));
    const Livre modifie = cas.enregistre(0);
    QVERIFY(Dialogues::cliquerPuisRepondre(cas.fenetre(), revenir, {Dialogues::renoncer()}));
    QCOMPARE(cas.enregistre(0), modifie);
    QVERIFY(Dialogues::cliquerPuisRepondre(cas.fenetre(), revenir, {[&](QDialog *dialogue) {
                                               lire(dialogue);
                                               Ecran::cliquer(dialogue,
                                                              QStringLiteral("Revenir aux valeurs d’origine"));
                                           }}));
    QVERIFY2(question.contains(QStringLiteral("Livre 1 : 3 prix reportés")), qPrintable(question));
    QVERIFY(!QFile::exists(cas.donnees.cheminUtilisateur(QStringLiteral("livres-modifies.json"))));
    QVERIFY(cas.cliquer(QStringLiteral("Annuler : retour aux valeurs d’origine")));
    QCOMPARE(cas.enregistre(0), modifie);
}

void TestVueLivres::listeFiltree()
{
    const BancLivres cas;
    const auto titres = [&] {
        QStringList finales;
        for (int rang = 0; rang < cas.liste()->model()->rowCount(); ++rang)
            finales.append(cas.liste()->model()->index(rang, 0).data().toString().last(1));
        return finales.join(u' ');
    };
    QVERIFY(Ecran::choisir(cas.fenetre(), QStringLiteral("État"), QStringLiteral("À reporter")));
    QCOMPARE(titres(), QStringLiteral("1 4 3"));
    QVERIFY(cas.cliquer(QStringLiteral("Tout reporter")));
    QCOMPARE(titres(), QStringLiteral("1 4 3")); // the list does not move under the hand
    QVERIFY(Ecran::choisir(cas.fenetre(), QStringLiteral("État"), QStringLiteral("Épuisés")));
    QCOMPARE(titres(), QStringLiteral("4"));
    QCOMPARE(cas.courant(), QStringLiteral("Livre 4"));
    QVERIFY(cas.cliquer(QStringLiteral("Mireva")));
    QCOMPARE(cas.texte(QStringLiteral("Aucun livre ne")),
             QStringLiteral("Aucun livre ne répond à la recherche et aux filtres."));
    QVERIFY(cas.cliquer(QStringLiteral("Annuler : 3 prix reportés de « Livre 1 »")));
    QCOMPARE(titres(), QStringLiteral("1")); // what changed is shown, whatever the filters say
}

QTEST_MAIN(TestVueLivres)
#include "tst_vue_livres.moc"
