#include "composants/Style.h"
#include "composants/TailleDuTexte.h"
#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"
#include "ui/vendeurs/FeuilleVendeurs.h"
#include "visite/Lisibilite.h"
#include "visite/SiteDeLaVisite.h"

#include <QListView>
#include <QRegularExpression>
#include <QTextBrowser>

using namespace Quillet;

namespace {

struct Cas
{
    Theme::Mode mode = Theme::Mode::clair;
    double texte = 1;
    bool extremes = false;
    bool enRoute = false; // when the text grows
    bool renforce = false;
};

// As much as a data file may bring.
void exagerer(Banc &donnees)
{
    const QString mot(60, u'm');
    const QString phrase = QStringLiteral("Une phrase qui ne finit pas, ").repeated(7);
    for (Livre &livre : donnees.livres) {
        livre.titre = livre.titreComplet = livre.id % 2 == 0 ? phrase : mot;
        livre.auteur = phrase;
        livre.prix = Centimes{9'999'999};
        livre.poids = livre.poids ? std::optional(Grammes{400'000}) : std::nullopt;
        livre.prixPaypal = {{vers("france"), Centimes{19'999'998}}};
    }
    for (TarifsColissimo &jeu : donnees.tarifs)
        for (GrilleColissimo &grille : jeu.grilles) {
            grille.nomCourt = grille.nom = phrase;
            grille.paliers.append({Grammes{999'999}, Centimes{9'999'999}});
        }
    for (Destination &destination : donnees.destinations) {
        destination.libelleCourt = destination.libelleFr = destination.valeurPaypal = phrase;
        destination.libelleCourtEn = mot;
    }
    for (Emballage &emballage : donnees.reglages.emballages)
        emballage = {phrase, Grammes{999'999}};
    for (IdentiteVendeur &identite : donnees.reglages.vendeurs) {
        identite.nom = identite.site.emplace(mot);
        identite.adresse = {phrase, mot};
        identite.retourPaypal = QStringLiteral("https://davrel.example/") + mot;
    }
}

// What cannot be read in it.
QStringList defauts(const QString &ecran, QWidget *fenetre, double contrasteMinimal)
{
    for (int tour = 0; tour < 5; ++tour)
        QCoreApplication::processEvents(); // a text that wraps may be laid out more than once
    QStringList defauts = Lisibilite::coupes(fenetre);
    if (contrasteMinimal > 0)
        for (const auto &contraste : Lisibilite::contrastes(fenetre))
            if (contraste.rapport < contrasteMinimal)
                defauts.append(QStringLiteral("%1 : « %2 », %3 sur %4, %5")
                                   .arg(contraste.widget, contraste.texte, contraste.encre.name(),
                                        contraste.fond.name(), QString::number(contraste.rapport)));
    return defauts.replaceInStrings(QRegularExpression("^"), ecran + QStringLiteral(", "));
}

} // namespace

// Every screen and sheet can be read: by day and by night, with a larger text, with whatever the data hold.
class TestLisibilite : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(); }

    void toutSeLit_data()
    {
        QTest::addColumn<Cas>("cas");
        const auto ligne = [](const char *nom, const Cas &cas) { QTest::newRow(nom) << cas; };
        ligne("de jour", {});
        ligne("de nuit", {.mode = Theme::Mode::sombre});
        ligne("contraste renforcé, de jour", {.renforce = true});
        ligne("contraste renforcé, de nuit", {.mode = Theme::Mode::sombre, .renforce = true});
        ligne("données extrêmes", {.extremes = true});
        ligne("données extrêmes, texte à 150 %", {.mode = Theme::Mode::sombre, .texte = 1.5, .extremes = true});
        ligne("texte agrandi en route", {.texte = 1.5, .enRoute = true});
    }

    void toutSeLit()
    {
        QFETCH(Cas, cas);
        const auto [mode, texte, extremes, enRoute, renforce] = cas;
        auto *style = new Style(mode);
        QApplication::setStyle(style);
        style->suivre({.contraste = renforce, .animations = false}); // what is measured stands still
        QFont police = QApplication::font();
        QFont agrandie = police;
        police.setPointSizeF(10 * (enRoute ? 1 : texte));
        agrandie.setPointSizeF(10 * texte);
        QApplication::setFont(police);
        const auto agrandir = [&, grandit = enRoute] {
            if (grandit) {
                TailleDuTexte::changer(police);
                TailleDuTexte::changer(agrandie);
            }
        };

        BancEcran banc;
        TarifsColissimo nouveaux = desTarifs("2026-01-01", Centimes{99'999});
        FraisPaypal frais = banc.donnees.reglages.fraisPaypal;
        frais.taux = Taux{3400};
        const SiteDeLaVisite site(SiteDeLaVisite::page(nouveaux, "1er janvier 2026"), SiteDeLaVisite::page(frais));
        banc.pages = site.pages();
        if (extremes)
            exagerer(banc.donnees);
        banc.demarrer();
        banc.commander("suisse");
        Fenetre &fenetre = banc.app->fenetre();
        if (enRoute) {
            for (const Rubrique rubrique : {Rubrique::tarifs, Rubrique::livres, Rubrique::commande})
                fenetre.contenu()->montrer(rubrique);
            agrandir();
            for (int tour = 0; tour < 5; ++tour)
                QCoreApplication::processEvents();
        }
        fenetre.resize(fenetre.minimumSizeHint());
        QStringList tous;
        const double contraste = texte != 1 || extremes ? 0
                                 : renforce             ? Lisibilite::contrasteRenforce
                                                        : Lisibilite::contrasteMinimal;
        const auto lire = [&](const QString &ecran, QWidget *lu) { tous += defauts(ecran, lu, contraste); };
        const auto lireEtFermer = [&](const QString &bouton, QDialog *feuille) {
            agrandir();
            lire(bouton, feuille);
            feuille->resize(feuille->minimumSizeHint());
            lire(bouton + QStringLiteral(", au plus petit"), feuille);
            feuille->reject();
        };
        lire("Commande", &fenetre);
        for (const char *bouton : {"Déclaration en douane", "Facture", "E-mail en anglais"})
            lireEtFermer(bouton, banc.ouvrir(bouton));
        QVERIFY(Ecran::choisirAuMenu(&fenetre, "Guide"));
        auto *guide = Dialogues::devant()->findChild<QTextBrowser *>();
        for (const char *section : {"#au-clavier", "#vos-livres-vos-couvertures-vos-adresses"}) {
            emit guide->anchorClicked(QUrl(section));
            lire(QStringLiteral("Guide, ") + section, Dialogues::devant());
        }
        lireEtFermer("Guide", Dialogues::devant());
        fenetre.contenu()->montrer(Rubrique::tarifs);
        for (const char *page : {"Tarifs Colissimo", "Frais PayPal"}) {
            const QString voir = QStringLiteral("Voir les changements, ") + QString::fromUtf8(page);
            QTRY_VERIFY(Ecran::controle(&fenetre, voir));
            lireEtFermer(voir, banc.ouvrir(voir));
        }
        lire("Tarifs", &fenetre);
        fenetre.contenu()->montrer(Rubrique::livres);
        auto *livres = qobject_cast<QListView *>(Ecran::controle(&fenetre, "Livres"));
        for (int rang = 0; rang < livres->model()->rowCount(); ++rang) { // to report, not weighed, sold out
            livres->setCurrentIndex(livres->model()->index(rang, 0));
            lire(QStringLiteral("Livre %1").arg(rang), &fenetre);
        }
        using Feuilles = QList<std::pair<const char *, Origine>>;
        const Feuilles siennes{{"Premiers pas", Origine::exemple}, {"Vendeurs et emballages", Origine::utilisateur}};
        for (const auto &[ecran, origine] : extremes ? Feuilles() : siennes) { // a field shows a part of a long text
            banc.origine = origine;
            banc.demarrer();
            lire(ecran, &banc.app->fenetre());
            FeuilleVendeurs::ouvrir(banc.app->contexte(), &banc.app->fenetre());
            Dialogues::devant()->setFocus(); // what is selected is drawn twice
            lireEtFermer(ecran, Dialogues::devant());
        }
        QVERIFY2(tous.isEmpty(), qPrintable(tous.join(u'\n')));
    }
};

QTEST_MAIN(TestLisibilite)
#include "tst_lisibilite.moc"
