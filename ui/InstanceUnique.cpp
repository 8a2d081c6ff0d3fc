#include "ui/InstanceUnique.h"

#include "model/Echec.h"
#include "model/Stockage.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace Quillet {

namespace {

constexpr int attente = 2000; // ms
constexpr int entreDeuxAppels = 30;
constexpr qint64 plusLongAppel = 1024; // bytes; compositors give some tens

QString dansLeDossierDeSession(const QString &nom)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u'/' + nom;
}

// The rest of the way is the compositor's: it is not handed what no token can be.
QByteArray jetonPlausible(const QByteArray &ligne)
{
    const QByteArray jeton = ligne.trimmed();
    const bool imprimable = std::all_of(jeton.begin(), jeton.end(), [](char c) { return c >= ' ' && c <= '~'; });
    return imprimable && jeton.size() < plusLongAppel ? jeton : QByteArray();
}

using EtatSysteme = struct stat;

bool memeDossier(int un, int autre)
{
    EtatSysteme ici{};
    EtatSysteme la{};
    return fstat(un, &ici) == 0 && fstat(autre, &la) == 0 && ici.st_dev == la.st_dev && ici.st_ino == la.st_ino;
}

} // namespace

InstanceUnique::InstanceUnique(const QDir &commun, std::chrono::milliseconds patience)
    : commun_(commun),
      patience_(patience),
      adresse_(dansLeDossierDeSession(QStringLiteral("quillet.socket"))),
      verrou_(dansLeDossierDeSession(QStringLiteral("quillet.lock")))
{
    verrou_.setStaleLockTime(0); // a session may last for days
    connect(&serveur_, &QLocalServer::newConnection, this, [this] { ecouter(serveur_.nextPendingConnection()); });
}

InstanceUnique::~InstanceUnique()
{
    for (const int verrou : verrousDesDonnees_)
        close(verrou);
}

QDir InstanceUnique::communDeLUtilisateur()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)};
}

bool InstanceUnique::prendreLaPlace(const QByteArray &jeton)
{
    // Any other error (a folder that cannot be written) must not keep the seller from working.
    const auto prise = [this] { return verrou_.tryLock() || verrou_.error() != QLockFile::LockFailedError; };
    if (!prise()) {
        if (appelerLaPremiere(jeton))
            return false;
        // Nobody answers for this lock: it was left in a state that Qt does not take for stale.
        QFile::remove(verrou_.fileName());
        if (!prise())
            return false;
    }
    // Sessions of one account do not share their runtime folder, but do share the data; other accounts may share the
    // sellers' own.
    commun_.mkpath(QStringLiteral("."));
    if (!verrouiller(commun_.path()) || !verrouiller(Stockage::dans(commun_).donneesPersonnelles().path())) {
        verrou_.unlock();
        throw Echec(QStringLiteral("Quillet est déjà ouvert sur les mêmes données, sans doute dans une autre "
                                   "session.\nFermez-le là-bas, puis recommencez."));
    }
    QLocalServer::removeServer(adresse_); // left by a program that was killed
    serveur_.setSocketOptions(QLocalServer::UserAccessOption);
    if (!serveur_.listen(adresse_))
        qWarning("Un second Quillet ne pourra pas appeler celui-ci : %s", qPrintable(serveur_.errorString()));
    return true;
}

bool InstanceUnique::appelerLaPremiere(const QByteArray &jeton) const
{
    // It may have taken the lock and not listen yet.
    QDeadlineTimer patience(attente);
    do {
        QLocalSocket prise;
        prise.connectToServer(adresse_);
        if (prise.waitForConnected(attente)) {
            prise.write(jetonPlausible(jeton) + '\n');
            prise.waitForBytesWritten(attente);
            // The system takes calls for a program that is stopped: only one that listens hangs up.
            if (prise.state() != QLocalSocket::UnconnectedState && !prise.waitForDisconnected(int(patience_.count())))
                throw Echec(QStringLiteral("Quillet est déjà ouvert, mais ne répond pas.\nAttendez un instant, ou "
                                           "fermez-le, puis recommencez."));
            return true;
        }
        QThread::msleep(entreDeuxAppels);
    } while (!patience.hasExpired());
    return false;
}

// One that another program holds is used all the same: what that one changes is noticed.
void InstanceUnique::suivreLesDonnees()
{
    static_cast<void>(verrouiller(Stockage::dans(commun_).donneesPersonnelles().path()));
}

// The lock goes with the program, however it ends, and leaves no file. A folder that is not there, or a disk that knows
// no such lock, must not keep the seller from working.
bool InstanceUnique::verrouiller(const QString &dossier)
{
    const int verrou = open(QFile::encodeName(dossier).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (verrou < 0)
        return true;
    const bool tenu = std::ranges::any_of(verrousDesDonnees_, [&](int autre) { return memeDossier(autre, verrou); });
    const bool pris = !tenu && flock(verrou, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (tenu || pris)
        close(verrou);
    else
        verrousDesDonnees_.append(verrou);
    return !pris;
}

// A call is one short line. Whoever sends anything else, or nothing, is not listened to for long.
void InstanceUnique::ecouter(QLocalSocket *appel)
{
    appel->setReadBufferSize(plusLongAppel);
    connect(appel, &QLocalSocket::disconnected, appel, &QObject::deleteLater);
    connect(appel, &QLocalSocket::readyRead, this, [this, appel] {
        if (appel->canReadLine())
            emit appelee(jetonPlausible(appel->readLine()));
        else if (appel->bytesAvailable() < plusLongAppel)
            return;
        appel->abort();
    });
    QTimer::singleShot(attente, appel, &QLocalSocket::abort);
}

} // namespace Quillet
