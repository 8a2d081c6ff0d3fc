#include "bench/Echantillon.h"
#include "bench/Mesures.h"
#include "bench/Temoin.h"
#include "ui/Fenetre.h"
#include "ui/QuilletApp.h"
#include "ui/commande/Couverture.h"
#include "ui/commun/ChampGrammes.h"
#include "ui/commun/Ressort.h"
#include "visite/Ecran.h"
#include "visite/HorsReseau.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Horloge = Temoin::Horloge;

constexpr double uneImage = 16; // ms
constexpr auto cadence = 16'667us;
const QDate jour(2026, 3, 2);

// The real window, worked through the window system's own events.
class Scene
{
public:
    Scene(Temoin &temoin, const Ressources &ressources, Stockage stockage, const Preferences &preferences)
        : temoin_(temoin),
          quillet_(
              ressources, std::move(stockage), preferences, [] { return jour; }, horsReseau()),
          fenetre_(quillet_.fenetre())
    {
        fenetre_.show();
        if (!QTest::qWaitForWindowExposed(&fenetre_))
            qFatal("La fenêtre ne s’ouvre pas");
        reposer();
    }

    // Each a list of milliseconds.
    QList<double> clics(int nombre);
    QList<double> frappes(int nombre);
    QList<double> survol(int images);
    QList<double> defilement(int crans);

private:
    [[nodiscard]] QList<Couverture *> couverturesVisibles() const;
    void survoler(const QPoint &position) { QTest::mouseMove(fenetre_.windowHandle(), position); }
    [[nodiscard]] QPoint milieu(const Couverture *couverture) const
    {
        return couverture->mapTo(&fenetre_, couverture->rect().center());
    }
    void reposer();
    [[nodiscard]] double jusquALImage(Horloge::time_point debut) const;
    template <typename Geste>
    double jusquAuChangement(Geste geste);

    Temoin &temoin_;
    QuilletApp quillet_;
    Fenetre &fenetre_;
};

QList<Couverture *> Scene::couverturesVisibles() const
{
    QList<Couverture *> couvertures = fenetre_.findChildren<Couverture *>();
    couvertures.removeIf([](const Couverture *couverture) {
        return !couverture->isEnabled() || !couverture->visibleRegion().contains(couverture->rect().center());
    });
    if (couvertures.isEmpty())
        qFatal("Aucune couverture à l’écran");
    return couvertures;
}

// Ends every motion, then waits until no picture is still to come.
void Scene::reposer()
{
    do {
        for (auto *mouvement : fenetre_.findChildren<QAbstractAnimation *>())
            if (mouvement->state() != QAbstractAnimation::Stopped)
                mouvement->setCurrentTime(mouvement->totalDuration());
        temoin_.guetter();
        QTest::qWait(15);
    } while (temoin_.image());
}

double Scene::jusquALImage(Horloge::time_point debut) const
{
    while (!temoin_.image()) {
        QCoreApplication::processEvents();
        if (Horloge::now() - debut > 5s)
            qFatal("Rien n’a été repeint");
    }
    return std::chrono::duration<double, std::milli>(*temoin_.image() - debut).count();
}

template <typename Geste>
double Scene::jusquAuChangement(Geste geste)
{
    // What is painted before the order has changed (a pressed button, say) does not count.
    const auto guet =
        QObject::connect(&quillet_.commande(), &Commande::change, &fenetre_, [this] { temoin_.guetter(); });
    temoin_.guetter();
    const auto debut = Horloge::now();
    geste();
    const double duree = jusquALImage(debut);
    QObject::disconnect(guet);
    return duree;
}

QList<double> Scene::clics(int nombre)
{
    const auto couvertures = couverturesVisibles();
    QList<double> durees;
    for (int i = 0; i < nombre; ++i) {
        if (i % (3 * couvertures.size()) == 0)
            quillet_.commande().vider();
        const QPoint position = milieu(couvertures[i % couvertures.size()]);
        survoler(position);
        reposer();
        durees.append(
            jusquAuChangement([&] { QTest::mouseClick(fenetre_.windowHandle(), Qt::LeftButton, {}, position); }));
    }
    return durees;
}

// A digit typed as the parcel's weight, then taken back.
QList<double> Scene::frappes(int nombre)
{
    auto *champ = qobject_cast<ChampGrammes *>(Ecran::controle(&fenetre_, QStringLiteral("Colis pesé, en grammes")));
    if (!champ)
        qFatal("Aucun champ pour le colis pesé");
    QList<double> durees;
    for (int i = 0; i < nombre; ++i) {
        reposer();
        durees.append(jusquAuChangement([&] { QTest::keyClick(champ, i % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace); }));
    }
    return durees;
}

// The images of the lift, one by one, whatever the time they take.
QList<double> Scene::survol(int images)
{
    const auto couvertures = couverturesVisibles();
    QList<double> durees;
    for (qsizetype i = 0; durees.size() < images; ++i) {
        const Couverture *couverture = couvertures[i % couvertures.size()];
        survoler({1, 1});
        reposer();
        survoler(milieu(couverture));
        const auto ressorts = couverture->findChildren<Ressort *>();
        const auto leve = std::ranges::find(ressorts, QAbstractAnimation::Running, &Ressort::state);
        if (leve == ressorts.end())
            qFatal("La couverture ne se lève pas");
        (*leve)->pause();
        for (int instant = 16; instant < (*leve)->duration(); instant += 16) {
            temoin_.guetter();
            const auto debut = Horloge::now();
            (*leve)->setCurrentTime(instant);
            durees.append(jusquALImage(debut));
        }
    }
    return durees;
}

// One notch of the wheel every sixtieth of a second through covers not seen yet. Each is counted from the time it was
// due, so that whatever keeps the window from answering counts too.
QList<double> Scene::defilement(int crans)
{
    const auto zones = fenetre_.findChildren<QScrollArea *>();
    const auto zone = std::ranges::find_if(zones, [](const QScrollArea *z) { return z->findChild<Couverture *>(); });
    const QScrollBar *ascenseur = (*zone)->verticalScrollBar();
    QWidget *vue = (*zone)->viewport();
    const QPointF position = vue->rect().center();
    int sens = -1;
    QList<double> durees;
    survoler({1, 1});
    reposer();
    auto prevue = Horloge::now();
    while (durees.size() < crans) {
        prevue = std::max(prevue + cadence, Horloge::now());
        while (Horloge::now() < prevue) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(100us);
        }
        temoin_.guetter();
        QWheelEvent cran(position, vue->mapToGlobal(position), {}, {0, sens * QWheelEvent::DefaultDeltasPerStep}, {},
                         {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(vue, &cran);
        durees.append(jusquALImage(prevue));
        if (ascenseur->value() == ascenseur->maximum())
            sens = 1;
        else if (ascenseur->value() == 0)
            sens = -1;
    }
    return durees;
}

QList<Releve> mesurer(Scene &&scene, const QString &livres, int gestes, std::optional<double> but)
{
    const auto nommer = [&](const QString &geste, const QList<double> &durees) {
        Releve ligne = releve(geste + QStringLiteral(", ") + livres, QStringLiteral("ms"), durees);
        ligne.but = but;
        return ligne;
    };
    return {nommer(QStringLiteral("Défilement à 60 images/s"), scene.defilement(gestes)),
            nommer(QStringLiteral("Clic sur une couverture"), scene.clics(gestes)),
            nommer(QStringLiteral("Chiffre tapé"), scene.frappes(gestes)),
            nommer(QStringLiteral("Image du survol"), scene.survol(gestes))};
}

QList<Releve> mesurer(Temoin &temoin, int livres, std::optional<double> but)
{
    const Echantillon echantillon(livres, Echantillon::Images::avec);
    return mesurer(Scene(temoin, echantillon.ressources(), echantillon.stockage(), echantillon.preferences()),
                   QStringLiteral("%L1 livres").arg(livres), 200, but);
}

} // namespace

QList<Releve> mesurerEcran(Temoin &temoin)
{
    QuilletApp::preparer();
    const Echantillon sansFichiers(0, Echantillon::Images::sans);
    return mesurer(Scene(temoin, Ressources::duProgramme(), sansFichiers.stockage(), sansFichiers.preferences()),
                   QStringLiteral("catalogue livré"), 200, uneImage)
           + mesurer(temoin, 300, uneImage) + mesurer(temoin, 2'000, std::nullopt);
}
