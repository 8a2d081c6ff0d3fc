#include "bench/Gestes.h"

#include "bench/Scene.h"
#include "ui/ContenuPrincipal.h"
#include "ui/Fenetre.h"
#include "ui/commande/Couverture.h"
#include "visite/Ecran.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QMenuBar>
#include <QTest>

namespace Quillet {

namespace {

void rienAPreparer(Scene &) {}

// An order that asks for every document.
void composer(Scene &scene)
{
    const auto couvertures = Gestes::couverturesVisibles(scene);
    for (int i = 0; i < 3; ++i)
        scene.cliquer(scene.milieu(*couvertures[i % couvertures.size()]));
    if (!Ecran::choisir(&scene.fenetre(), QStringLiteral("Envoi vers"), QStringLiteral("Suisse")))
        qFatal("Pas d’envoi vers la Suisse");
    scene.reposer();
}

double clicSurUneCouverture(Scene &scene, int rang)
{
    const auto couvertures = Gestes::couverturesVisibles(scene);
    if (rang % (3 * couvertures.size()) == 0)
        scene.commande().vider();
    const QPoint position = scene.milieu(*couvertures[rang % couvertures.size()]);
    scene.tenir(position);
    return scene.chronometrer([&] { scene.relacher(position); });
}

double choixDeDestination(Scene &scene, int)
{
    auto *choix = qobject_cast<QComboBox *>(&scene.controle(QStringLiteral("Envoi vers")));
    if (!choix)
        qFatal("Pas de destination à choisir");
    scene.reposer();
    const bool derniere = choix->currentIndex() == choix->count() - 1;
    return scene.chronometrer([&] { QTest::keyClick(choix, derniere ? Qt::Key_Home : Qt::Key_Down); });
}

// Typed, then taken back.
double chiffreDuPoids(Scene &scene, int rang)
{
    QWidget &champ = scene.controle(QStringLiteral("Colis pesé, en grammes"));
    scene.reposer();
    return scene.chronometrer([&] { QTest::keyClick(&champ, rang % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace); });
}

double ouvrir(Scene &scene, const QString &bouton)
{
    const QPoint position = scene.milieu(scene.controle(bouton));
    scene.tenir(position);
    return scene.chronometrerLOuverture([&] { scene.relacher(position); });
}

double ouvrirLaReponse(Scene &scene, int)
{
    return ouvrir(scene, QStringLiteral("E-mail en anglais"));
}

double ouvrirLaDouane(Scene &scene, int)
{
    return ouvrir(scene, QStringLiteral("Déclaration en douane"));
}

double ouvrirLaFacture(Scene &scene, int)
{
    return ouvrir(scene, QStringLiteral("Facture"));
}

double ouvrirLesMisesAJour(Scene &scene, int)
{
    for (QAction *action : scene.fenetre().menuBar()->actions().first()->menu()->actions())
        if (action->text() == QStringLiteral("&Rechercher les mises à jour…") && action->isEnabled())
            return scene.chronometrerLOuverture([action] { action->trigger(); });
    qFatal("Pas de mises à jour au menu");
}

void attendreLesNouveautes(Scene &scene)
{
    scene.fenetre().contenu()->montrer(Rubrique::tarifs);
    const auto annoncees = [&scene] {
        return Ecran::controle(&scene.fenetre(), QStringLiteral("Voir les changements, Tarifs Colissimo"))
               && Ecran::controle(&scene.fenetre(), QStringLiteral("Voir les changements, Frais PayPal"));
    };
    if (!QTest::qWaitFor(annoncees))
        qFatal("Les pages n’annoncent rien");
    scene.reposer();
}

double ouvrirLesNouveauxTarifs(Scene &scene, int)
{
    return ouvrir(scene, QStringLiteral("Voir les changements, Tarifs Colissimo"));
}

double ouvrirLesNouveauxFrais(Scene &scene, int)
{
    return ouvrir(scene, QStringLiteral("Voir les changements, Frais PayPal"));
}

// A price that the return to shipped values would lose.
void changerUnPrix(Scene &scene)
{
    scene.fenetre().contenu()->montrer(Rubrique::livres);
    const QString prix = QStringLiteral("Prix, en euros");
    if (!Ecran::taper(&scene.fenetre(), prix, QStringLiteral("19,90")))
        qFatal("Pas de prix à changer");
    QTest::keyClick(&scene.controle(prix), Qt::Key_Return);
    scene.reposer();
}

// By the action: a window without a window manager is not active, and hears no shortcut.
void annuler(Scene &scene)
{
    for (QAction *action : scene.fenetre().findChildren<QAction *>())
        if (action->shortcuts() == QKeySequence::keyBindings(QKeySequence::Undo) && action->isEnabled())
            action->trigger();
    scene.reposer();
}

// A new price leaves every button of the book to be changed; each change is undone again.
double reporter(Scene &scene, int)
{
    const QPoint position = scene.milieu(scene.controle(QStringLiteral("Reporter")));
    scene.tenir(position);
    const double duree = scene.chronometrer([&] { scene.relacher(position); });
    annuler(scene);
    return duree;
}

double ouvrirLeRetour(Scene &scene, int)
{
    return ouvrir(scene, QStringLiteral("Revenir aux valeurs d’origine…"));
}

double allerA(Scene &scene, Rubrique rubrique)
{
    scene.fenetre().contenu()->montrer(Rubrique::commande);
    scene.reposer();
    auto *rubriques = scene.fenetre().findChild<QListWidget *>();
    const QRect rangee = rubriques->visualItemRect(rubriques->item(static_cast<int>(rubrique)));
    const QPoint position = rubriques->viewport()->mapTo(&scene.fenetre(), rangee.center());
    scene.survoler(position);
    scene.reposer();
    const double duree = scene.chronometrer([&] { scene.enfoncer(position); });
    scene.relacher(position);
    return duree;
}

double allerAuxTarifs(Scene &scene, int)
{
    return allerA(scene, Rubrique::tarifs);
}

double allerAuxLivres(Scene &scene, int)
{
    return allerA(scene, Rubrique::livres);
}

} // namespace

QList<Couverture *> Gestes::couverturesVisibles(Scene &scene)
{
    auto couvertures = scene.fenetre().findChildren<Couverture *>();
    couvertures.removeIf([](const Couverture *couverture) {
        return !couverture->isEnabled() || !couverture->visibleRegion().contains(couverture->rect().center());
    });
    if (couvertures.isEmpty())
        qFatal("Aucune couverture à l’écran");
    return couvertures;
}

Gestes::Geste Gestes::report()
{
    return {QStringLiteral("reporter"), QStringLiteral("« Reporter »"), changerUnPrix, reporter};
}

QList<Gestes::Geste> Gestes::frequents()
{
    return {{QStringLiteral("clic"), QStringLiteral("Clic sur une couverture"), rienAPreparer, clicSurUneCouverture},
            {QStringLiteral("destination"), QStringLiteral("Choix d’une destination"), composer, choixDeDestination},
            {QStringLiteral("poids"), QStringLiteral("Chiffre du poids"), composer, chiffreDuPoids}};
}

QList<Gestes::Geste> Gestes::feuilles()
{
    return {{QStringLiteral("reponse"), QStringLiteral("Réponse à l’acheteur"), composer, ouvrirLaReponse},
            {QStringLiteral("douane"), QStringLiteral("Déclaration en douane"), composer, ouvrirLaDouane},
            {QStringLiteral("facture"), QStringLiteral("Facture"), composer, ouvrirLaFacture},
            {QStringLiteral("nouveaux-tarifs"), QStringLiteral("Nouveaux tarifs"), attendreLesNouveautes,
             ouvrirLesNouveauxTarifs},
            {QStringLiteral("nouveaux-frais"), QStringLiteral("Nouveaux frais"), attendreLesNouveautes,
             ouvrirLesNouveauxFrais},
            {QStringLiteral("mises-a-jour"), QStringLiteral("Mises à jour"), rienAPreparer, ouvrirLesMisesAJour},
            {QStringLiteral("retour"), QStringLiteral("Retour aux valeurs d’origine"), changerUnPrix, ouvrirLeRetour}};
}

QList<Gestes::Geste> Gestes::ecrans()
{
    return {{QStringLiteral("tarifs"), QStringLiteral("Écran des tarifs"), composer, allerAuxTarifs},
            {QStringLiteral("livres"), QStringLiteral("Écran des livres"), rienAPreparer, allerAuxLivres}};
}

} // namespace Quillet
