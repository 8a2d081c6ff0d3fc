#include "bench/Scene.h"

#include "ui/Fenetre.h"
#include "visite/Dialogues.h"
#include "visite/Ecran.h"

#include <QAbstractAnimation>
#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <thread>

namespace Quillet {

namespace {

using namespace std::chrono_literals;
using Horloge = Temoin::Horloge;

constexpr auto cadence = 16'667us;
constexpr auto controlesAuDepart = 400ms; // the weekly checks start late, and change what is on the screen
constexpr auto calme = 30ms;              // longer than a picture takes to be read
constexpr auto patience = 30s;            // an instrumented program is slow
const QDate jour(2026, 3, 2);

// Nobody answers there, which takes no time to know.
SourceMisesAJour misesAJour(const QDir &cache)
{
    return {.flux = QUrl(QStringLiteral("https://127.0.0.1:9/appcast.xml")),
            .clePublique = QByteArray(std::tuple_size_v<SignatureEd25519::Cle>, 'q').toBase64(),
            .installee = QStringLiteral("0.1.0"),
            .cache = cache,
            .installer = [](const QString &) { return false; }};
}

} // namespace

Scene::Scene(Temoin &temoin, const Echantillon &echantillon)
    : temoin_(temoin),
      quillet_(
          echantillon.ressources(), echantillon.stockage(), echantillon.preferences(), [] { return jour; },
          site_.pages(), misesAJour(cache_.path())),
      fenetre_(quillet_.fenetre())
{
    fenetre_.resize(fenetre_.tailleParDefaut()); // whatever screen it is drawn for
    fenetre_.show();
    if (!QTest::qWaitForWindowExposed(&fenetre_))
        qFatal("La fenêtre ne s’ouvre pas");
    QTest::qWait(controlesAuDepart.count());
    reposer();
}

QWidget &Scene::controle(const QString &nom)
{
    QWidget *controle = Ecran::controle(&fenetre_, nom);
    if (!controle || !Ecran::defiler(&fenetre_, nom))
        qFatal("Introuvable à l’écran : %s", qPrintable(nom));
    return *controle;
}

QPoint Scene::milieu(const QWidget &controle)
{
    return controle.mapTo(&fenetre_, controle.rect().center());
}

void Scene::survoler(const QPoint &position)
{
    QTest::mouseMove(fenetre_.windowHandle(), position);
}

void Scene::enfoncer(const QPoint &position)
{
    QTest::mousePress(fenetre_.windowHandle(), Qt::LeftButton, {}, position);
}

void Scene::relacher(const QPoint &position)
{
    QTest::mouseRelease(fenetre_.windowHandle(), Qt::LeftButton, {}, position);
}

void Scene::cliquer(const QPoint &position)
{
    QTest::mouseClick(fenetre_.windowHandle(), Qt::LeftButton, {}, position);
}

void Scene::tenir(const QPoint &position)
{
    survoler(position);
    enfoncer(position);
    reposer();
}

void Scene::reposer()
{
    do {
        for (auto *mouvement : fenetre_.findChildren<QAbstractAnimation *>())
            if (mouvement->state() != QAbstractAnimation::Stopped)
                mouvement->setCurrentTime(mouvement->totalDuration());
        temoin_.guetter();
        QTest::qWait(calme.count());
    } while (temoin_.image());
}

double Scene::jusquALImage(Horloge::time_point debut) const
{
    QTimer garde;
    garde.callOnTimeout([] { qFatal("Rien n’a été repeint"); });
    garde.start(patience);
    while (!temoin_.image())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return std::chrono::duration<double, std::milli>(*temoin_.image() - debut).count();
}

double Scene::chronometrer(const std::function<void()> &geste)
{
    return chronometrer(geste, Temoin::Guet::fenetres);
}

double Scene::chronometrer(const std::function<void()> &geste, Temoin::Guet guet)
{
    temoin_.guetter(guet);
    const auto debut = Horloge::now();
    geste();
    return jusquALImage(debut);
}

double Scene::chronometrerLOuverture(const std::function<void()> &geste)
{
    QTimer fermeture; // runs also in the loop of a dialog that holds the program up
    QObject::connect(&fermeture, &QTimer::timeout, &fenetre_, [this] {
        if (QDialog *dialogue = Dialogues::devant(); dialogue && temoin_.image())
            dialogue->reject();
    });
    fermeture.start(1ms);
    const double duree = chronometrer(geste, Temoin::Guet::dialogues);
    while (Dialogues::devant())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    fermeture.stop();
    reposer();
    return duree;
}

QList<double> Scene::defiler(QAbstractScrollArea &zone, int crans)
{
    const QScrollBar *ascenseur = zone.verticalScrollBar();
    QWidget *vue = zone.viewport();
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

} // namespace Quillet
