#include "ui/JourCourant.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace Quillet {

JourCourant::JourCourant(Aujourdhui aujourdhui, std::chrono::milliseconds periode)
    : aujourdhui_(std::move(aujourdhui)), vu_(aujourdhui_())
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *devant) {
        regarder();
        if (devant)
            emit retour();
    });
    connect(&minuterie_, &QTimer::timeout, this, &JourCourant::regarder);
    minuterie_.start(periode);
}

void JourCourant::regarder()
{
    if (const QDate jour = aujourdhui_(); std::exchange(vu_, jour) != jour)
        emit change();
}

} // namespace Quillet
