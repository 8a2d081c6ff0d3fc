#include "tests/BancEcran.h"
#include "tests/DisquePlein.h"
#include "ui/ContenuPrincipal.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include <functional>

// The books' screen: the list and what narrows it, edits through the real fields into the real file, PayPal's buttons.
class TestLivres : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void enMots_data();
    void enMots();
    void saisir_data();
    void saisir();
    void echecDit_data();
    void echecDit();
    void laSaisieNEstPasPerdue();
    void lEchecResteDit();
    void fermerSansPerdre();
    void ordreDuClavier();
    void boutonsPaypal();
    void annulerAuClavier();
    void revenirAuxValeurs();
    void listeFiltree();
    void laCommandeSuit();
};

namespace {

struct Cas : BancEcran
{
    Cas()
    {
        donnees.livres[0].prixPaypal = {{QStringLiteral("france"), Centimes{2000}}};
        demarrer();
        app->fenetre().contenu()->montrer(Rubrique::livres);
    }
    [[nodiscard]] Fenetre *fenetre() const { return &app->fenetre(); }
    [[nodiscard]] Livre enregistre(qsizetype rang) const { return donnees.charger()->livres()[rang]; }
    [[nodiscard]] QListView *liste() const
    {
        return qobject_cast<QListView *>(Ecran::controle(fenetre(), QStringLiteral("Livres")));
    }
    [[nodiscard]] QLineEdit *champ(const QString &nom) const
    {
        return qobject_cast<QLineEdit *>(Ecran::controle(fenetre(), nom));
    }
    void choisir(int rang) const { liste()->setCurrentIndex(liste()->model()->index(rang, 0)); }
    [[nodiscard]] QString courant() const { return liste()->currentIndex().data().toString(); }
    // The text on screen that begins like this.
    [[nodiscard]] QString texte(const QString &debut) const
    {
        for (const auto *libelle : fenetre()->findChildren<QLabel *>())
            if (libelle->isVisible() && libelle->text().startsWith(debut))
                return lisible(libelle->text());
        return {};
    }
    [[nodiscard]] bool cliquer(const QString &bouton) const { return Ecran::cliquer(fenetre(), bouton); }
};

const QString prix = QStringLiteral("Prix, en euros");
const QString poids = QStringLiteral("Poids, en grammes");
const QString nonEnregistree = QStringLiteral("Modification non enregistrée : ");

} // namespace

Q_DECLARE_METATYPE(std::function<bool(const Cas &)>)

void TestLivres::enMots_data()
{
    QTest::addColumn<int>("rang");
    QTest::addColumn<QString>("attendu");
    const QString debut = QStringLiteral("Livre %1, Une autrice, 14 × 21 cm · 200 pages, vendu par ");
    QTest::newRow("pesé") << 0 << debut.arg(1) + QStringLiteral("Davrel, 200 g, 15,00 €, 3 prix à reporter");
    QTest::newRow("jamais pesé") << 1 << debut.arg(2) + QStringLiteral("Davrel, Poids à peser, 22,00 €");
    QTest::newRow("épuisé") << 2 << debut.arg(4) + QStringLiteral("Davrel, 150 g, 9,00 €, Épuisé, 3 prix à reporter");
    QTest::newRow("l’autre vendeur") << 3 << debut.arg(3) + QStringLiteral("Mireva, 300 g, 18,00 €, 3 prix à reporter");
}

void TestLivres::enMots()
{
    QFETCH(int, rang);
    QFETCH(QString, attendu);
    const Cas cas;
    QCOMPARE(lisible(cas.liste()->model()->index(rang, 0).data(Qt::AccessibleTextRole).toString()), attendu);
}

void TestLivres::saisir_data()
{
    QTest::addColumn<QString>("champ");
    QTest::addColumn<QString>("saisie");
    QTest::addColumn<QString>("affiche");
    QTest::addColumn<qint64>("enregistre");
    QTest::addColumn<QString>("refus");
    QTest::newRow("virgule") << prix << "16,5"
                             << "16,50" << qint64{1650} << "";
    QTest::newRow("point") << prix << "16.05"
                           << "16,05" << qint64{1605} << "";
    QTest::newRow("prix refusé") << prix << "-2"
                                 << "15,00" << qint64{1500} << "Un prix ne peut pas être négatif.";
    QTest::newRow("poids") << poids << "1250"
                           << "1 250" << qint64{1250} << "";
    QTest::newRow("plus pesé") << poids << ""
                               << "" << qint64{-1} << "";
    QTest::newRow("poids refusé") << poids << "2 kg"
                                  << "200" << qint64{200} << "Un poids s’écrit en grammes entiers, comme 355.";
}

void TestLivres::saisir()
{
    QFETCH(QString, champ);
    QFETCH(QString, saisie);
    QFETCH(QString, affiche);
    QFETCH(qint64, enregistre);
    QFETCH(QString, refus);
    for (const auto touche : {Qt::Key_Return, Qt::Key_Tab}) {
        const Cas cas;
        cas.champ(champ)->setFocus();
        QVERIFY(Ecran::taper(cas.fenetre(), champ, saisie));
        QCOMPARE(cas.texte(QStringLiteral("Un p")), refus); // said while it is typed
        QTest::keyClick(cas.champ(champ), touche);
        QCOMPARE(lisible(cas.champ(champ)->text()), affiche);
        QCOMPARE(cas.texte(QStringLiteral("Un p")), refus); // and still said afterwards
        const Livre livre = cas.enregistre(0);
        QCOMPARE(champ == prix ? livre.prix.valeur() : livre.poids.value_or(Grammes{-1}).valeur(), enregistre);
    }
}

void TestLivres::echecDit_data()
{
    QTest::addColumn<std::function<bool(const Cas &)>>("geste");
    const auto clic = [](const char *bouton) {
        return std::function([nom = QString::fromUtf8(bouton)](const Cas &cas) { return cas.cliquer(nom); });
    };
    QTest::newRow("prix") << std::function([](const Cas &cas) {
        cas.champ(prix)->setFocus();
        const bool tape = Ecran::taper(cas.fenetre(), prix, QStringLiteral("16"));
        QTest::keyClick(cas.champ(prix), Qt::Key_Return);
        return tape;
    });
    QTest::newRow("disponible") << clic("Disponible");
    QTest::newRow("reporter") << clic("Reporter, France");
    QTest::newRow("tout reporter") << clic("Tout reporter");
    QTest::newRow("garder") << clic("Garder, France");
    QTest::newRow("annuler") << clic("Annuler : disponibilité de « Livre 1 »");
}

// Screen, memory and file agree afterwards, and the next attempt goes through.
void TestLivres::echecDit()
{
    QFETCH(std::function<bool(const Cas &)>, geste);
    const Cas cas;
    if (QString::fromUtf8(QTest::currentDataTag()) == QStringLiteral("annuler"))
        QVERIFY(cas.cliquer(QStringLiteral("Disponible")));
    const auto etat = [&] {
        QStringList textes;
        for (const auto *libelle : cas.fenetre()->findChildren<QLabel *>())
            if (libelle->isVisible())
                textes.append(libelle->text());
        const auto *disponible =
            qobject_cast<QAbstractButton *>(Ecran::controle(cas.fenetre(), QStringLiteral("Disponible")));
        textes.append(cas.champ(prix)->text() + QString::number(disponible->isChecked()));
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

// Another book, another screen, or no window any more: what was typed counts.
void TestLivres::laSaisieNEstPasPerdue()
{
    const QList<std::function<void(const Cas &)>> sorties{
        [](const Cas &cas) {
            QTest::mouseClick(cas.liste()->viewport(), Qt::LeftButton, {},
                              cas.liste()->visualRect(cas.liste()->model()->index(1, 0)).center());
        },
        [](const Cas &cas) { cas.fenetre()->contenu()->montrer(Rubrique::commande); },
        [](const Cas &cas) { cas.fenetre()->close(); },
    };
    for (const auto &sortir : sorties) {
        const Cas cas;
        cas.champ(prix)->setFocus();
        QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("16")));
        sortir(cas);
        QCOMPARE(cas.enregistre(0).prix, Centimes{1600});
        QCOMPARE(cas.enregistre(1).prix, Centimes{2200});
    }
}

// The click that leaves the field also shows another book.
void TestLivres::lEchecResteDit()
{
    const Cas cas;
    cas.champ(prix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("16")));
    const DisquePlein plein;
    QTest::mouseClick(cas.liste()->viewport(), Qt::LeftButton, {},
                      cas.liste()->visualRect(cas.liste()->model()->index(1, 0)).center());
    QVERIFY(!cas.texte(nonEnregistree).isEmpty());
}

// A window that could not save what was typed stays open to say so; closing again leaves it.
void TestLivres::fermerSansPerdre()
{
    const Cas cas;
    cas.champ(prix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("16")));
    const DisquePlein plein;
    QVERIFY(!cas.fenetre()->close());
    QVERIFY(!cas.texte(nonEnregistree).isEmpty());
    QVERIFY(cas.fenetre()->close());
}

// The schedule's choice belongs to the head, whenever a next schedule comes.
void TestLivres::ordreDuClavier()
{
    Cas cas;
    cas.donnees.tarifs.append(desTarifs(QStringLiteral("2026-04-01"), Centimes{600}));
    cas.demarrer();
    cas.fenetre()->contenu()->montrer(Rubrique::livres);
    QVERIFY(cas.cliquer(QStringLiteral("À partir du 1er avril 2026")));
    auto *segment = Ecran::controle(cas.fenetre(), QStringLiteral("À partir du 1er avril 2026"));
    segment->setFocus();
    QTest::keyClick(segment, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->accessibleName(), QStringLiteral("Chercher un livre"));
}

void TestLivres::boutonsPaypal()
{
    const Cas cas;
    cas.champ(prix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("16")));
    QVERIFY(cas.cliquer(QStringLiteral("Reporter, Suisse"))); // the price read there, not the one that follows
    QCOMPARE(cas.enregistre(0).prixPaypal->value(QStringLiteral("suisse")), Centimes{2049});
    QVERIFY(cas.cliquer(QStringLiteral("Copier 20,49, France")));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("21,49")); // what the edit makes of it
    QVERIFY(cas.cliquer(QStringLiteral("Annuler : prix de « Livre 1 »")));
    QCOMPARE(cas.texte(QStringLiteral("+0,49")), QStringLiteral("+0,49 €"));
    QCOMPARE(cas.texte(QStringLiteral("Pas de grille")), QStringLiteral("Pas de grille Colissimo")); // the Moon

    auto *garder = Ecran::controle(cas.fenetre(), QStringLiteral("Garder, France"));
    garder->setFocus();
    QTest::keyClick(garder, Qt::Key_Space);
    QCOMPARE(cas.enregistre(0).prixEcartes, PrixParDestination({{QStringLiteral("france"), Centimes{2049}}}));
    // The keyboard is led to the next price to report, and on to the next book after the last.
    const QString focus = QApplication::focusWidget()->accessibleName();
    QVERIFY2(focus.startsWith(QStringLiteral("Copier 20,49, Union européenne, À reporter")), qPrintable(focus));
    auto *tout = Ecran::controle(cas.fenetre(), QStringLiteral("Reporter, Union européenne"));
    tout->setFocus();
    QTest::keyClick(tout, Qt::Key_Space);
    const PrixParDestination reportes{{QStringLiteral("france"), Centimes{2000}}, // kept: never undone by the rest
                                      {QStringLiteral("suisse"), Centimes{2049}},
                                      {QStringLiteral("ue"), Centimes{2049}}};
    QCOMPARE(cas.enregistre(0).prixPaypal, reportes);
    QCOMPARE(cas.texte(QStringLiteral("Rien")), QStringLiteral("Rien à reporter"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 4"));
    QVERIFY(cas.cliquer(QStringLiteral("Tout reporter")));
    QCOMPARE(cas.enregistre(3).prixPaypal->size(), 3);
    cas.choisir(0);
    QVERIFY(cas.cliquer(QStringLiteral("Reporter, France"))); // a kept price may still be reported
    QCOMPARE(cas.enregistre(0).prixPaypal->value(QStringLiteral("france")), Centimes{2049});
    QVERIFY(cas.enregistre(0).prixEcartes->isEmpty());
}

void TestLivres::annulerAuClavier()
{
    const Cas cas;
    QVERIFY(cas.cliquer(QStringLiteral("Disponible")));
    QVERIFY(!Ecran::controle(cas.fenetre(), QStringLiteral("Rétablir"))->isEnabled());
    cas.champ(prix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("16")));
    QTest::keyClick(cas.champ(prix), Qt::Key_Return);
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("17")));
    // First the typing, then what was saved, from the same field.
    while (cas.champ(prix)->isUndoAvailable())
        QTest::keyClick(cas.champ(prix), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cas.enregistre(0).prix, Centimes{1600});
    QTest::keyClick(cas.champ(prix), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cas.champ(prix)->text(), QStringLiteral("15,00"));
    QCOMPARE(cas.enregistre(0).prix, Centimes{1500});
    cas.choisir(2);
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("7")));
    QTest::keyClick(cas.champ(prix), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 4")); // what is being typed is not swept away
    QTest::keyClick(cas.champ(prix), Qt::Key_Escape);
    QWidget *rubriques = Ecran::controle(cas.fenetre(), QStringLiteral("Rubriques"));
    rubriques->setFocus(); // where the seller comes from
    QTest::keyClick(rubriques, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cas.courant(), QStringLiteral("Livre 1")); // what changed is shown
    QCOMPARE(cas.enregistre(0), cas.donnees.livres[0]);
    QVERIFY(!Ecran::controle(cas.fenetre(), QStringLiteral("Annuler"))->isEnabled());
    QTest::keyClick(cas.liste(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!cas.enregistre(0).disponible);
}

void TestLivres::revenirAuxValeurs()
{
    const Cas cas;
    const QString revenir = QStringLiteral("Revenir aux valeurs d’origine…");
    QString question;
    const auto lire = [&question](const QDialog *dialogue) {
        question.clear();
        for (const auto *libelle : dialogue->findChildren<QLabel *>())
            question += libelle->text();
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

void TestLivres::listeFiltree()
{
    const Cas cas;
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

void TestLivres::laCommandeSuit()
{
    const Cas cas;
    cas.commander(QStringLiteral("france"));
    cas.champ(prix)->setFocus();
    QVERIFY(Ecran::taper(cas.fenetre(), prix, QStringLiteral("16,25")));
    QTest::keyClick(cas.champ(prix), Qt::Key_Return);
    cas.fenetre()->contenu()->montrer(Rubrique::commande);
    QCOMPARE(lisible(Ecran::valeurEnFaceDe(cas.fenetre(), QStringLiteral("Sous-total"))), QStringLiteral("32,50 €"));
}

QTEST_MAIN(TestLivres)
#include "tst_livres.moc"
