#include "composants/Style.h"
#include "composants/TailleDuTexte.h"
#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"
#include "visite/Lisibilite.h"
#include "visite/SiteDeLaVisite.h"

#include <QDialog>
#include <QListView>
#include <QRegularExpression>
#include <QTest>

using namespace Quillet;

// Every screen and sheet can be read: by day and by night, with a larger text, with whatever the data hold.
class TestLisibilite : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(); }
    void toutSeLit_data();
    void toutSeLit();
};

namespace {

// Springs jump: what is measured stands still.
class SansMouvement : public Style
{
public:
    using Style::Style;
    int styleHint(StyleHint indice, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *retour) const override
    {
        return indice == SH_Widget_Animate ? 0 : Style::styleHint(indice, option, widget, retour);
    }
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
    return defauts.replaceInStrings(QRegularExpression(QStringLiteral("^")), ecran + QStringLiteral(", "));
}

} // namespace

void TestLisibilite::toutSeLit_data()
{
    QTest::addColumn<Theme::Mode>("mode");
    QTest::addColumn<double>("texte");
    QTest::addColumn<bool>("extremes");
    QTest::addColumn<bool>("enRoute");
    QTest::addColumn<bool>("renforce");
    QTest::newRow("de jour") << Theme::Mode::clair << 1.0 << false << false << false;
    QTest::newRow("de nuit") << Theme::Mode::sombre << 1.0 << false << false << false;
    QTest::newRow("contraste renforcé, de jour") << Theme::Mode::clair << 1.0 << false << false << true;
    QTest::newRow("contraste renforcé, de nuit") << Theme::Mode::sombre << 1.0 << false << false << true;
    QTest::newRow("texte à 150 %") << Theme::Mode::clair << 1.5 << false << false << false;
    QTest::newRow("données extrêmes") << Theme::Mode::clair << 1.0 << true << false << false;
    QTest::newRow("données extrêmes, texte à 150 %") << Theme::Mode::sombre << 1.5 << true << false << false;
    QTest::newRow("texte agrandi en route") << Theme::Mode::clair << 1.5 << false << true << false;
}

void TestLisibilite::toutSeLit()
{
    QFETCH(Theme::Mode, mode);
    QFETCH(double, texte);
    QFETCH(bool, extremes);
    QFETCH(bool, enRoute);
    QFETCH(bool, renforce);
    auto *style = new SansMouvement(mode);
    QApplication::setStyle(style);
    style->suivre({.contraste = renforce});
    QFont police = QApplication::font();
    QFont agrandie = police;
    police.setPointSizeF(10 * (enRoute ? 1 : texte));
    agrandie.setPointSizeF(10 * texte);
    QApplication::setFont(police);
    const auto agrandir = [&] {
        if (!enRoute)
            return;
        TailleDuTexte::changer(police);
        TailleDuTexte::changer(agrandie);
    };

    BancEcran banc;
    TarifsColissimo nouveaux = desTarifs("2026-04-01", Centimes{99'999});
    FraisPaypal frais = banc.donnees.reglages.fraisPaypal;
    frais.taux = Taux{340};
    const SiteDeLaVisite site(SiteDeLaVisite::page(nouveaux, QStringLiteral("1er avril 2026")),
                              SiteDeLaVisite::page(frais));
    banc.pages = site.pages();
    if (extremes)
        exagerer(banc.donnees);
    banc.demarrer();
    banc.commander(QStringLiteral("suisse"));
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
    lire(QStringLiteral("Commande"), &fenetre);
    for (const char *bouton : {"Déclaration en douane", "Facture", "E-mail en anglais"})
        lireEtFermer(QString::fromUtf8(bouton), banc.ouvrir(QString::fromUtf8(bouton)));
    fenetre.contenu()->montrer(Rubrique::tarifs);
    for (const char *page : {"Tarifs Colissimo", "Frais PayPal"}) {
        const QString voir = QStringLiteral("Voir les changements, ") + QString::fromUtf8(page);
        QTRY_VERIFY(Ecran::controle(&fenetre, voir));
        lireEtFermer(voir, banc.ouvrir(voir));
    }
    lire(QStringLiteral("Tarifs"), &fenetre);
    fenetre.contenu()->montrer(Rubrique::livres);
    auto *livres = qobject_cast<QListView *>(Ecran::controle(&fenetre, QStringLiteral("Livres")));
    for (int rang = 0; rang < livres->model()->rowCount(); ++rang) { // to report, not weighed, sold out
        livres->setCurrentIndex(livres->model()->index(rang, 0));
        lire(QStringLiteral("Livre %1").arg(rang), &fenetre);
    }
    QVERIFY2(tous.isEmpty(), qPrintable(tous.join(u'\n')));
}

QTEST_MAIN(TestLisibilite)
#include "tst_lisibilite.moc"
