#include "ui/InstanceUnique.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace {

constexpr int attente = 2000; // ms
constexpr int entreDeuxAppels = 30;

QString dansLeDossierDeSession(const QString &nom)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u'/' + nom;
}

} // namespace

InstanceUnique::InstanceUnique()
    : adresse_(dansLeDossierDeSession(QStringLiteral("quillet.socket"))),
      verrou_(dansLeDossierDeSession(QStringLiteral("quillet.lock")))
{
    verrou_.setStaleLockTime(0); // a session may last for days
    connect(&serveur_, &QLocalServer::newConnection, this, [this] {
        delete serveur_.nextPendingConnection();
        emit appelee();
    });
}

bool InstanceUnique::prendreLaPlace()
{
    // Any other error (a folder that cannot be written) must not keep the seller from working.
    const auto prise = [this] { return verrou_.tryLock() || verrou_.error() != QLockFile::LockFailedError; };
    if (!prise()) {
        if (appelerLaPremiere())
            return false;
        // Nobody answers for this lock: it was left in a state that Qt does not take for stale.
        QFile::remove(verrou_.fileName());
        if (!prise())
            return false;
    }
    QLocalServer::removeServer(adresse_); // left by a program that was killed
    serveur_.setSocketOptions(QLocalServer::UserAccessOption);
    if (!serveur_.listen(adresse_))
        qWarning("Un second Quillet ne pourra pas appeler celui-ci : %s", qPrintable(serveur_.errorString()));
    return true;
}

bool InstanceUnique::appelerLaPremiere() const
{
    // It may have taken the lock and not listen yet.
    QDeadlineTimer patience(attente);
    do {
        QLocalSocket prise;
        prise.connectToServer(adresse_);
        if (prise.waitForConnected(attente))
            return true;
        QThread::msleep(entreDeuxAppels);
    } while (!patience.hasExpired());
    return false;
}
