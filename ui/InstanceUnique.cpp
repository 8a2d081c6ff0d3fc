#include "ui/InstanceUnique.h"

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

bool InstanceUnique::premiere()
{
    if (!verrou_.tryLock() && verrou_.error() == QLockFile::LockFailedError) {
        appelerLaPremiere();
        return false;
    }
    QLocalServer::removeServer(adresse_); // left by a program that was killed
    serveur_.setSocketOptions(QLocalServer::UserAccessOption);
    serveur_.listen(adresse_);
    return true;
}

void InstanceUnique::appelerLaPremiere() const
{
    QLocalSocket prise;
    prise.connectToServer(adresse_);
    prise.waitForConnected(attente);
}
