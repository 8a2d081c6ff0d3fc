#pragma once

#include <QLocalServer>
#include <QLockFile>

namespace Quillet {

// Only one Quillet runs per user: two would write the same files. A second start asks the first to show itself.
class InstanceUnique : public QObject
{
    Q_OBJECT

public:
    InstanceUnique();

    // False: another one runs; it has been asked to show itself, and given the token by which whoever started this one
    // allows a window to come forward (empty when there is none).
    [[nodiscard]] bool prendreLaPlace(const QByteArray &jeton);

signals:
    void appelee(const QByteArray &jeton);

private:
    [[nodiscard]] bool appelerLaPremiere(const QByteArray &jeton) const;
    void ecouter(QLocalSocket *appel);

    QString adresse_;
    QLockFile verrou_;
    QLocalServer serveur_;
};

} // namespace Quillet
