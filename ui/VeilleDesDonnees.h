#pragma once

#include <QFileSystemWatcher>
#include <QPointer>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace Quillet {

class AlerteRelecture;
struct Contexte;

// A line over the window as soon as somebody else has changed the sellers' own data: another computer that shares the
// folder, an editor. Hidden else; it offers to read them again. The folder may be far: a thread looks at it.
class VeilleDesDonnees : public QWidget
{
    Q_OBJECT

public:
    explicit VeilleDesDonnees(const Contexte &contexte, QWidget *parent = nullptr);
    ~VeilleDesDonnees() override;
    Q_DISABLE_COPY_MOVE(VeilleDesDonnees)

private:
    void regarder();
    [[nodiscard]] bool surveiller(const QStringList &chemins);

    const Contexte &contexte_;
    AlerteRelecture *avis_;
    QFileSystemWatcher guetteur_;
    QTimer repos_; // runs while files are being written, one after the other
    QPointer<QThread> fil_;
    bool encore_ = false; // something moved since it looks
};

} // namespace Quillet
