#include "ui/InstanceUnique.h"

#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

namespace {

constexpr int attente = 2000; // ms

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
    serveur_.listen(adresse_);
    return true;
}

bool InstanceUnique::appelerLaPremiere() const
{
    QLocalSocket prise;
    prise.connectToServer(adresse_);
    return prise.waitForConnected(attente);
}
