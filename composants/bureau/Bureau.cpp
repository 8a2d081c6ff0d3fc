#include "composants/bureau/Bureau.h"

#include "composants/bureau/PortailDesReglages.h"

#include <QCoreApplication>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

// Between two changes of the whole window, whatever a broken portal sends.
constexpr auto repit = 100ms;
constexpr auto finDuFil = 1s;

} // namespace

Bureau::Bureau() : fil_(new QThread)
{
    repit_.setSingleShot(true);
    repit_.setInterval(repit);
    connect(&repit_, &QTimer::timeout, this, &Bureau::prendre);
    auto *portail = new PortailDesReglages;
    portail->moveToThread(fil_);
    connect(fil_, &QThread::started, portail, &PortailDesReglages::ecouter);
    connect(fil_, &QThread::finished, portail, &QObject::deleteLater);
    connect(portail, &PortailDesReglages::dit, this, &Bureau::entendre);
    fil_->start();
}

Bureau::~Bureau()
{
    fil_->quit();
    // A bus that does not answer may hold the thread for ever: then it is left to the end of the process.
    if (fil_->wait(finDuFil))
        delete fil_;
}

void Bureau::relever()
{
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void Bureau::entendre(const Souhaits &souhaits)
{
    dits_ = souhaits;
    if (!repit_.isActive())
        prendre();
}

void Bureau::prendre()
{
    if (std::exchange(souhaits_, dits_) == dits_)
        return;
    repit_.start();
    emit change();
}

} // namespace Quillet
