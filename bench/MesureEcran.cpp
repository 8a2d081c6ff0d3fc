#include "bench/Gestes.h"
#include "bench/Mesures.h"
#include "bench/Scene.h"
#include "composants/Ressort.h"
#include "ui/Fenetre.h"
#include "ui/commande/Couverture.h"

#include <QScrollArea>

#include <algorithm>

namespace Quillet {

namespace {

constexpr double uneImage = 16; // ms
constexpr int fois = 200;

QScrollArea &zoneDesCouvertures(Scene &scene)
{
    const auto zones = scene.fenetre().findChildren<QScrollArea *>();
    const auto zone = std::ranges::find_if(zones, [](const QScrollArea *z) { return z->findChild<Couverture *>(); });
    if (zone == zones.end())
        qFatal("Aucune couverture à l’écran");
    return **zone;
}

// The images of the lift, one by one, whatever the time they take.
QList<double> survol(Scene &scene)
{
    const auto couvertures = Gestes::couverturesVisibles(scene);
    QList<double> durees;
    for (qsizetype i = 0; durees.size() < fois; ++i) {
        const Couverture *couverture = couvertures[i % couvertures.size()];
        scene.survoler({1, 1});
        scene.reposer();
        scene.survoler(scene.milieu(*couverture));
        const auto ressorts = couverture->findChildren<Ressort *>();
        const auto leve = std::ranges::find(ressorts, QAbstractAnimation::Running, &Ressort::state);
        if (leve == ressorts.end())
            qFatal("La couverture ne se lève pas");
        (*leve)->pause();
        for (int instant = 16; instant < (*leve)->duration(); instant += 16)
            durees.append(scene.chronometrer([&] { (*leve)->setCurrentTime(instant); }));
    }
    return durees;
}

// Scrolling lifts the cover that comes under the true pointer, wherever that is, and nothing here would lay it down.
QList<Releve> mesurer(Scene &&scene, const QString &livres)
{
    const QString ms = QStringLiteral("ms");
    const QString nom = QStringLiteral("%1, ") + livres;
    const QList<double> leve = survol(scene);
    QList<Releve> releves{
        releve(nom.arg(QStringLiteral("Défilement à 60 images/s")), ms, scene.defiler(zoneDesCouvertures(scene), fois)),
        releve(nom.arg(QStringLiteral("Image du survol")), ms, leve)};
    for (const Gestes::Geste &geste : Gestes::frequents()) {
        QList<double> durees;
        geste.preparer(scene);
        while (durees.size() < fois)
            durees.append(geste.jouer(scene, static_cast<int>(durees.size())));
        releves.append(releve(nom.arg(geste.enMots), ms, durees));
    }
    return releves;
}

QList<Releve> mesurer(Temoin &temoin, int livres)
{
    const Echantillon echantillon(livres, Echantillon::Images::avec);
    return mesurer(Scene(temoin, echantillon), QStringLiteral("%L1 livres").arg(livres));
}

} // namespace

QList<Releve> mesurerEcran(Temoin &temoin)
{
    QuilletApp::preparer();
    const Echantillon livre;
    const Echantillon siens(2'000, Echantillon::Images::avec, Origine::utilisateur);
    return parTaille(uneImage, mesurer(Scene(temoin, livre), QStringLiteral("catalogue livré")), mesurer(temoin, 300),
                     mesurer(temoin, 2'000))
           + avecBut(uneImage, mesurer(Scene(temoin, siens), QStringLiteral("2 000 livres à soi")));
}

} // namespace Quillet
