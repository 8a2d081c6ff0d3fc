#include "tests/BancEcran.h"
#include "tests/serveur/ServeurLocal.h"
#include "textes/TextesTarifs.h"
#include "textes/TextesVerifications.h"
#include "ui/ContenuPrincipal.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"
#include "visite/SiteDeLaVisite.h"

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

using namespace Quillet;

// The tariffs screen, its sheets, and what they say.
class TestVueTarifs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }
    void init();
    void cleanup() { banc_.reset(); }

    void tableaux();
    void lignes_data();
    void lignes();
    void ecarts_data();
    void ecarts();
    void compte();
    void laPageGardeSaPlace();
    void changementsEnregistres();
    void fraisRemisAPlusTard();
    void enregistrementManque();
    void sansDateDEffet();
    void pasDeChangement();
    void verificationManquee();

private:
    // Starts on these pages, and waits until both were checked.
    void demarrer(const TarifsColissimo &tarifs, const FraisPaypal &frais,
                  const QString &dateDEffet = QStringLiteral("1er avril 2026"));
    [[nodiscard]] QString rubrique() const
    {
        return banc_->app->fenetre().findChild<QListWidget *>()->item(1)->data(Qt::AccessibleTextRole).toString();
    }

    ServeurLocal serveur_;
    std::unique_ptr<BancEcran> banc_;
};

namespace {

const QString voirTarifs = QStringLiteral("Voir les changements, Tarifs Colissimo");
const QString voirFrais = QStringLiteral("Voir les changements, Frais PayPal");
const QString enregistrer = QStringLiteral("Enregistrer ces tarifs");

} // namespace

void TestVueTarifs::init()
{
    banc_ = std::make_unique<BancEcran>();
    banc_->donnees.reglages.fraisPaypal.supplements = {
        {RegionPaypal::eee, Taux{0}}, {RegionPaypal::royaumeUni, Taux{129}}, {RegionPaypal::autres, Taux{199}}};
}

void TestVueTarifs::demarrer(const TarifsColissimo &tarifs, const FraisPaypal &frais, const QString &dateDEffet)
{
    serveur_.servir(QStringLiteral("/poste"), http("200 OK", SiteDeLaVisite::page(tarifs, dateDEffet).toUtf8()));
    serveur_.servir(QStringLiteral("/paypal"), http("200 OK", SiteDeLaVisite::page(frais).toUtf8()));
    banc_->pages = {serveur_.adresse(QStringLiteral("/poste")), serveur_.adresse(QStringLiteral("/paypal"))};
    banc_->demarrer();
    banc_->app->fenetre().contenu()->montrer(Rubrique::tarifs);
    QTRY_VERIFY(!banc_->donnees.preferences().texte(QStringLiteral("verification.paypal")).isEmpty());
}

void TestVueTarifs::tableaux()
{
    Banc &donnees = banc_->donnees;
    TarifsColissimo &tarifs = donnees.tarifs.last();
    GrilleColissimo lointaine = tarifs.grilles[1];
    lointaine.code = ZoneColissimo::royaumeUni;
    lointaine.nomCourt = lointaine.nom = QStringLiteral("Royaume-Uni");
    lointaine.paliers.removeAt(1);
    GrilleColissimo ailleurs = tarifs.grilles[0];
    ailleurs.famille = Cle<FamilleTarifs>(QStringLiteral("lune"));
    tarifs.grilles += {lointaine, ailleurs};
    BonDeCommande bon;
    bon.ajuster(donnees.livres[0], 2);
    bon.codeDestination = vers("ue");

    const auto familles = TextesTarifs::familles(tarifs, Calcul::de(donnees.donnees(), bon, jourDuBanc));
    QStringList titres;
    for (const auto &famille : familles)
        titres.append(famille.titre);
    QCOMPARE(titres, (QStringList{QStringLiteral("France métropolitaine, Monaco, Andorre"), QStringLiteral("Europe")}));
    const auto &europe = familles[1];
    QCOMPARE(europe.zones, (QStringList{QStringLiteral("UE et Suisse"), QStringLiteral("Royaume-Uni")}));
    QCOMPARE(europe.pays, QStringList{QStringLiteral("UE et Suisse : ici et là")});
    QCOMPARE(europe.paliers.size(), 3);
    QCOMPARE(europe.paliers[2].poids, QStringLiteral("jusqu’à 2 kg"));
    const auto &moyen = europe.paliers[1].prix;
    QCOMPARE(lisible(moyen[0].texte), QStringLiteral("7,59 €"));
    QVERIFY(moyen[0].enCours); // 440 g for the Union
    QCOMPARE(moyen[1], (TextesTarifs::Prix{QStringLiteral("—"), false}));
    QVERIFY(!familles[0].paliers[1].prix[0].enCours && !europe.paliers[0].prix[0].enCours);
}

void TestVueTarifs::lignes_data()
{
    QTest::addColumn<QString>("verifie"); // as kept
    QTest::addColumn<QString>("symbole");
    QTest::addColumn<QString>("etat");
    QTest::newRow("jamais") << QString() << QString() << QStringLiteral("Pas encore vérifiés depuis l’app");
    QTest::newRow("récemment") << QStringLiteral("2026-03-01T12:00:00Z") << QStringLiteral("checkmark.circle")
                               << QStringLiteral("Vérifiés le 1er mars 2026");
    QTest::newRow("il y a longtemps") << QStringLiteral("2025-11-03T12:00:00Z")
                                      << QStringLiteral("clock.badge.exclamationmark")
                                      << QStringLiteral("Vérifiés le 3 novembre 2025 : à revérifier");
}

void TestVueTarifs::lignes()
{
    QFETCH(QString, verifie);
    QFETCH(QString, symbole);
    QFETCH(QString, etat);
    Preferences preferences = banc_->donnees.preferences();
    preferences.ecrire(QStringLiteral("verification.laPoste"), verifie);
    banc_->donnees.tarifs.append(desTarifs("2026-04-01", Centimes{600}));
    const auto catalogue = banc_->donnees.charger();
    const auto maintenant = [] { return QDateTime(jourDuBanc, QTime(10, 0)); };
    const Verifications verifications(*catalogue, preferences, maintenant, horsReseau());
    const auto ligne = TextesVerifications::laPoste(verifications, catalogue->donnees(), jourDuBanc);
    QCOMPARE(ligne.detail, QStringLiteral("en vigueur au 1er janvier 2026, nouvelle grille au 1er avril 2026"));
    QCOMPARE(ligne.symboleEtat, symbole);
    QCOMPARE(ligne.etat, etat);
    QCOMPARE(lisible(TextesVerifications::paypal(verifications, catalogue->donnees()).detail),
             QStringLiteral("2,90 % + 0,35 € ; Royaume-Uni + 1,29 %, autres pays + 1,99 %"));
}

void TestVueTarifs::ecarts_data()
{
    QTest::addColumn<qint64>("avant"); // -1: none
    QTest::addColumn<qint64>("apres");
    QTest::addColumn<QString>("ecart");
    QTest::newRow("hausse") << qint64{940} << qint64{990} << QStringLiteral("+0,50 € +5,32 %");
    QTest::newRow("baisse") << qint64{990} << qint64{940} << QStringLiteral("-0,50 € -5,05 %");
    QTest::newRow("gratuit avant") << qint64{0} << qint64{940} << QStringLiteral("+9,40 €");
    QTest::newRow("nouveau") << qint64{-1} << qint64{940} << QStringLiteral("nouveau palier");
    QTest::newRow("supprimé") << qint64{940} << qint64{-1} << QStringLiteral("palier supprimé");
}

void TestVueTarifs::ecarts()
{
    QFETCH(qint64, avant);
    QFETCH(qint64, apres);
    QFETCH(QString, ecart);
    const auto prix = [](qint64 centimes) { return centimes < 0 ? std::nullopt : std::optional(Centimes{centimes}); };
    const auto texte = TextesVerifications::ecarts(
        {{banc_->donnees.tarifs.last().grilles[1], Grammes{2000}, prix(avant), prix(apres)}});
    QCOMPARE(texte[0].zone, QStringLiteral("UE et Suisse"));
    QCOMPARE(texte[0].jusqua, QStringLiteral("2 kg"));
    QCOMPARE(texte[0].avant == QStringLiteral("—"), avant < 0);
    QCOMPARE(lisible(texte[0].ecart + u' ' + texte[0].variation).trimmed(), ecart);
}

void TestVueTarifs::compte()
{
    const TarifsColissimo tarifs = desTarifs("2026-04-01", Centimes{600});
    const QList<EcartTarif> un(1);
    QCOMPARE(TextesVerifications::compte(un, tarifs), QStringLiteral("1 palier sur 6 changent."));
    QCOMPARE(TextesVerifications::compte(un + un, tarifs), QStringLiteral("2 paliers sur 6 changent."));
}

void TestVueTarifs::laPageGardeSaPlace()
{
    banc_->donnees.tarifs.last().grilles[1].nomCourt = QStringLiteral("Union européenne, Suisse et voisins lointains");
    const TarifsColissimo tarifs = banc_->donnees.tarifs.last();
    demarrer(tarifs, banc_->donnees.reglages.fraisPaypal);
    const Fenetre &fenetre = banc_->app->fenetre();
    QVERIFY(Ecran::montre(&fenetre, QStringLiteral("en vigueur au 1er janvier 2026")));
    auto *page = qobject_cast<QScrollArea *>(Ecran::controle(&fenetre, QStringLiteral("Tarifs et frais")));
    QVERIFY(page);
    QTest::keyClick(page, Qt::Key_End);
    QVERIFY(page->verticalScrollBar()->value() > 0);
    const QPointer<QWidget> tableau = Ecran::controle(&fenetre, QStringLiteral("Europe"));
    QVERIFY(tableau);
    banc_->app->commande().setPaysLivraison(QStringLiteral("la Lune")); // nothing here says so
    QVERIFY(tableau);
    for (const QLabel *texte : page->findChildren<QLabel *>())
        QVERIFY2(!texte->isVisible()
                     || texte->height()
                            >= std::max(texte->fontMetrics().height(), texte->heightForWidth(texte->width())),
                 qPrintable(texte->text()));
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo"));
}

void TestVueTarifs::changementsEnregistres()
{
    TarifsColissimo tarifs = banc_->donnees.tarifs.last();
    tarifs.grilles[0].paliers[0].prix = Centimes{600};
    demarrer(tarifs, banc_->donnees.reglages.fraisPaypal);
    Fenetre &fenetre = banc_->app->fenetre();
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo, 1 à voir"));
    QVERIFY(Ecran::montre(&fenetre, QStringLiteral("Nouveaux tarifs sur laposte.fr")));
    QVERIFY(!Ecran::controle(&fenetre, voirFrais));

    QDialog *feuille = banc_->ouvrir(voirTarifs);
    QVERIFY(Ecran::montre(feuille, QStringLiteral("En vigueur à partir du 1er avril 2026 · relevés sur laposte.fr le 2 "
                                                  "mars 2026")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("1 palier sur 6 changent.")));
    QCOMPARE(BancEcran::luAuTableau(feuille, QStringLiteral("France"), QStringLiteral("Après")),
             QStringLiteral("6,00 €"));
    QVERIFY(Ecran::cliquer(feuille, enregistrer));
    QTRY_VERIFY(!Dialogues::devant());
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo"));
    QVERIFY(
        Ecran::montre(&fenetre, QStringLiteral("en vigueur au 1er janvier 2026, nouvelle grille au 1er avril 2026")));
    QVERIFY(Ecran::cliquer(&fenetre, QStringLiteral("À partir du 1er avril 2026")));
    QTRY_VERIFY(Ecran::montre(&fenetre, QStringLiteral("À partir du 1er avril 2026")));
    QTRY_COMPARE(BancEcran::luAuTableau(&fenetre, QStringLiteral("jusqu’à 250 g"), QStringLiteral("France")),
                 QStringLiteral("France, jusqu’à 250 g : 6,00 €"));
}

void TestVueTarifs::fraisRemisAPlusTard()
{
    FraisPaypal frais = banc_->donnees.reglages.fraisPaypal;
    frais.taux = Taux{320};
    demarrer(banc_->donnees.tarifs.last(), frais);
    QDialog *feuille = banc_->ouvrir(voirFrais);
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Relevés sur paypal.com, tarifs marchands pour la France")));
    QCOMPARE(BancEcran::luAuTableau(feuille, QStringLiteral("Taux de base"), QStringLiteral("En vigueur")),
             QStringLiteral("2,90 %"));
    QVERIFY(Ecran::cliquer(feuille, QStringLiteral("Plus tard")));
    QTRY_VERIFY(!Dialogues::devant());
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo, 1 à voir")); // still there
    QVERIFY(Ecran::cliquer(banc_->ouvrir(voirFrais), QStringLiteral("Enregistrer ces frais")));
    QTRY_VERIFY(!Dialogues::devant());
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo"));
}

void TestVueTarifs::enregistrementManque()
{
    TarifsColissimo tarifs = banc_->donnees.tarifs.last();
    tarifs.grilles[0].paliers[0].prix = Centimes{600};
    demarrer(tarifs, banc_->donnees.reglages.fraisPaypal);
    banc_->donnees.ecrireUtilisateur(QStringLiteral("tarifs-colissimo-2026-04-01.json/obstacle"), "un dossier");
    QDialog *feuille = banc_->ouvrir(voirTarifs);
    QVERIFY(Ecran::cliquer(feuille, enregistrer));
    QCOMPARE(Dialogues::devant(), feuille); // still open
    QVERIFY(Ecran::montre(feuille, QDir::toNativeSeparators(banc_->donnees.cheminUtilisateur(
                                       QStringLiteral("tarifs-colissimo-2026-04-01.json")))
                                       + QStringLiteral(" : un dossier occupe la place du fichier")));
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo, 1 à voir"));
}

void TestVueTarifs::sansDateDEffet()
{
    TarifsColissimo tarifs = banc_->donnees.tarifs.last();
    tarifs.grilles[0].paliers[0].prix = Centimes{600};
    demarrer(tarifs, banc_->donnees.reglages.fraisPaypal, QStringLiteral("bientôt"));
    const QDialog *feuille = banc_->ouvrir(voirTarifs);
    QVERIFY(Ecran::montre(
        feuille, QStringLiteral("Date d’effet introuvable sur la page : c’est le jour du relevé qui est retenu.")));
}

// What was read is not in force today, yet no tier differs from the day before it comes into force.
void TestVueTarifs::pasDeChangement()
{
    const TarifsColissimo connus = banc_->donnees.tarifs.last();
    TarifsColissimo courts = connus;
    courts.validite = QDate(2026, 3, 1);
    courts.grilles.removeLast();
    courts.grilles[0].paliers[0].prix = Centimes{600};
    banc_->donnees.tarifs.append(courts);
    demarrer(connus, banc_->donnees.reglages.fraisPaypal, QStringLiteral("1er mars 2026"));
    QDialog *feuille = banc_->ouvrir(voirTarifs);
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Pas de changement")));
    QVERIFY(Ecran::montre(feuille, QStringLiteral("Les tarifs de laposte.fr sont ceux de l’app.")));
    QVERIFY(!Ecran::controle(feuille, enregistrer));
    QVERIFY(Ecran::cliquer(feuille, QStringLiteral("Fermer")));
}

void TestVueTarifs::verificationManquee()
{
    banc_->demarrer(); // on pages that nobody serves
    Fenetre &fenetre = banc_->app->fenetre();
    fenetre.contenu()->montrer(Rubrique::tarifs);
    QTRY_VERIFY(Ecran::controle(&fenetre, QStringLiteral("Ouvrir la page, Frais PayPal")));
    QVERIFY(Ecran::montre(&fenetre, QStringLiteral("Page inaccessible : connexion refusée.")));
    QCOMPARE(rubrique(), QStringLiteral("Tarifs Colissimo, 2 à voir"));
    const QString verifier = QStringLiteral("Vérifier, Tarifs Colissimo");
    QWidget *bouton = Ecran::controle(&fenetre, verifier);
    bouton->setFocus();
    QTest::keyClick(bouton, Qt::Key_Space);
    QVERIFY(Ecran::montre(&fenetre, QStringLiteral("Mise à jour en cours…")));
    QTest::keyClick(bouton, Qt::Key_Space); // starts nothing more, and keeps the focus
    QTRY_VERIFY(!Ecran::montre(&fenetre, QStringLiteral("Mise à jour en cours…")));
    QVERIFY(bouton->hasFocus());
}

QTEST_MAIN(TestVueTarifs)
#include "tst_vue_tarifs.moc"
