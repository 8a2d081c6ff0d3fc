#pragma once

#include "composants/bureau/Souhaits.h"

#include <QObject>
#include <QThread>
#include <QTimer>

namespace Quillet {

// Follows what the desktop says. It never waits: the bus and the portal are asked in a thread of its own, and until
// they answer there are no wishes.
class Bureau : public QObject
{
    Q_OBJECT

public:
    Bureau(); // asks at once
    ~Bureau() override;
    Q_DISABLE_COPY_MOVE(Bureau)

    [[nodiscard]] const Souhaits &souhaits() const { return souhaits_; }
    // Takes what has been answered by now, where no event loop runs yet.
    void relever();

signals:
    void change();

private:
    void entendre(const Souhaits &souhaits);
    void prendre();

    Souhaits dits_; // last
    Souhaits souhaits_;
    QTimer repit_;
    QThread *fil_;
};

} // namespace Quillet
