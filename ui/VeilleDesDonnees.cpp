#include "ui/VeilleDesDonnees.h"

#include "composants/Pile.h"
#include "textes/TextesDonnees.h"
#include "ui/AlerteRelecture.h"
#include "ui/Contexte.h"

#include <QDeadlineTimer>

#include <chrono>

using namespace std::chrono_literals;

namespace Quillet {

VeilleDesDonnees::VeilleDesDonnees(const Contexte &contexte, QWidget *parent)
    : QWidget(parent), contexte_(contexte), avis_(new AlerteRelecture(contexte.catalogue))
{
    Pile::rangee(this, {.marges = {24, 8, 24, 8}}, {{avis_, 1}});
    hide();

    repos_.setSingleShot(true);
    repos_.setInterval(500ms);
    connect(&repos_, &QTimer::timeout, this, &VeilleDesDonnees::regarder);
    connect(&guetteur_, &QFileSystemWatcher::directoryChanged, &repos_, qOverload<>(&QTimer::start));
    connect(&guetteur_, &QFileSystemWatcher::fileChanged, &repos_, qOverload<>(&QTimer::start));
    // A disk of another computer tells of nothing: it is asked.
    connect(&contexte_.jour, &JourCourant::retour, &repos_, qOverload<>(&QTimer::start));
    connect(&contexte_.catalogue, &Catalogue::recharge, &repos_, qOverload<>(&QTimer::start));
    connect(avis_, &AlerteRelecture::relu, this, &QWidget::hide);
    repos_.start();
}

// A look owns all that it touches.
VeilleDesDonnees::~VeilleDesDonnees()
{
    constexpr auto patience = 2s;
    if (fil_)
        fil_->wait(QDeadlineTimer(patience));
}

// Whether something is watched that was not: it may have changed before.
bool VeilleDesDonnees::surveiller(const QStringList &chemins)
{
    const QStringList suivis = guetteur_.files() + guetteur_.directories(); // without what was replaced
    QStringList nouveaux;
    for (const QString &chemin : chemins)
        if (!suivis.contains(chemin))
            nouveaux.append(chemin);
    for (const QString &suivi : suivis)
        if (!chemins.contains(suivi))
            guetteur_.removePath(suivi);
    return !nouveaux.isEmpty() && guetteur_.addPaths(nouveaux).size() < nouveaux.size();
}

void VeilleDesDonnees::regarder()
{
    encore_ = fil_;
    if (fil_)
        return;
    struct Vu
    {
        QStringList chemins; // some may be written in place
        QStringList changes;
    };
    const auto vu = std::make_shared<Vu>();
    const auto personnel = contexte_.catalogue.personnel();
    fil_ = QThread::create([personnel, vu] {
        if (personnel)
            *vu = {personnel->chemins(), personnel->changes()};
    });
    connect(fil_, &QThread::finished, fil_, &QObject::deleteLater);
    connect(fil_, &QThread::finished, this, [this, personnel, vu] {
        fil_ = nullptr;
        const bool encore = surveiller(vu->chemins) || encore_;
        if (encore || personnel != contexte_.catalogue.personnel()) // saved or read again meanwhile
            return regarder();
        avis_->montrer(TextesDonnees::changeesAilleurs(vu->changes), true);
        setVisible(!vu->changes.isEmpty());
    });
    fil_->start(QThread::LowPriority);
}

} // namespace Quillet
