#pragma once

#include "composants/bureau/Souhaits.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include <optional>

class QDBusPendingCallWatcher;

namespace Quillet {

// Asks the desktop's portal for its settings and listens to them. Connecting to a bus and following a service wait for
// the bus: it must live in a thread where that holds nobody up.
class PortailDesReglages : public QObject
{
    Q_OBJECT

public:
    void ecouter();

signals:
    void dit(const Souhaits &souhaits);

private slots:
    void changer(const QString &espace, const QString &cle, const QDBusVariant &valeur);

private:
    void demander();
    void repondre(QDBusPendingCallWatcher *appel);

    std::optional<QDBusConnection> bus_;
    Souhaits souhaits_;
};

} // namespace Quillet
