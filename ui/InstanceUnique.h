#pragma once

#include <QLocalServer>
#include <QLockFile>

// Only one Quillet runs per user: two would write the same files. A second start asks the first to show itself.
class InstanceUnique : public QObject
{
    Q_OBJECT

public:
    InstanceUnique();

    // False: another one runs; it has been asked to show itself.
    [[nodiscard]] bool prendreLaPlace();

signals:
    void appelee();

private:
    [[nodiscard]] bool appelerLaPremiere() const;

    QString adresse_;
    QLockFile verrou_;
    QLocalServer serveur_;
};
