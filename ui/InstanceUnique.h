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
    [[nodiscard]] bool premiere();

signals:
    void appelee();

private:
    void appelerLaPremiere() const;

    QString adresse_;
    QLockFile verrou_;
    QLocalServer serveur_;
};
