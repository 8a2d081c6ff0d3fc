#include "bench/Gestes.h"
#include "bench/Mesures.h"
#include "bench/Scene.h"
#include "ui/ContenuPrincipal.h"
#include "ui/Fenetre.h"

#include <QListView>
#include <QTest>

namespace Quillet {

namespace {

constexpr double uneImage = 16; // ms
constexpr int fois = 60;

QListView &liste(Scene &scene)
{
    auto *liste = qobject_cast<QListView *>(&scene.controle(QStringLiteral("Livres")));
    if (!liste)
        qFatal("Aucune liste de livres");
    return *liste;
}

// A letter that half the books have, then none again.
QList<double> recherche(Scene &scene)
{
    QWidget &champ = scene.controle(QStringLiteral("Chercher un livre"));
    QList<double> durees;
    while (durees.size() < fois) {
        scene.reposer();
        const Qt::Key touche = durees.size() % 2 == 0 ? Qt::Key_J : Qt::Key_Backspace;
        durees.append(scene.chronometrer([&] { QTest::keyClick(&champ, touche); }));
    }
    return durees;
}

// The two books in sight in turn.
QList<double> choix(Scene &scene)
{
    QListView &livres = liste(scene);
    livres.scrollToTop();
    QList<double> durees;
    while (durees.size() < fois) {
        const QModelIndex livre = livres.model()->index(durees.size() % 2 == 0 ? 1 : 0, 0);
        const QPoint position = livres.viewport()->mapTo(&scene.fenetre(), livres.visualRect(livre).center());
        scene.survoler(position);
        scene.reposer();
        durees.append(scene.chronometrer([&] { scene.enfoncer(position); }));
        scene.relacher(position);
    }
    return durees;
}

QList<double> report(Scene &scene)
{
    const Gestes::Geste geste = Gestes::report();
    geste.preparer(scene);
    QList<double> durees;
    while (durees.size() < fois)
        durees.append(geste.jouer(scene, static_cast<int>(durees.size())));
    return durees;
}

QList<Releve> mesurer(Temoin &temoin, const Echantillon &echantillon, const QString &livres)
{
    Scene scene(temoin, echantillon);
    scene.fenetre().contenu()->montrer(Rubrique::livres);
    scene.reposer();
    const auto nommer = [&](const QString &geste, const QList<double> &durees) {
        return releve(QStringLiteral("Écran des livres : %1, %2").arg(geste, livres), QStringLiteral("ms"), durees);
    };
    return {nommer(QStringLiteral("défilement"), scene.defiler(liste(scene), fois)),
            nommer(QStringLiteral("lettre cherchée"), recherche(scene)),
            nommer(QStringLiteral("autre livre"), choix(scene)), nommer(QStringLiteral("« Reporter »"), report(scene))};
}

QList<Releve> mesurer(Temoin &temoin, int livres)
{
    return mesurer(temoin, Echantillon(livres, Echantillon::Images::avec), QStringLiteral("%L1 livres").arg(livres));
}

} // namespace

QList<Releve> mesurerLivres(Temoin &temoin)
{
    QuilletApp::preparer();
    return parTaille(uneImage, mesurer(temoin, Echantillon(), QStringLiteral("catalogue livré")), mesurer(temoin, 300),
                     mesurer(temoin, 2'000))
           + avecBut(uneImage, mesurer(temoin, Echantillon(2'000, Echantillon::Images::avec, Origine::utilisateur),
                                       QStringLiteral("2 000 livres à soi")));
}

} // namespace Quillet
