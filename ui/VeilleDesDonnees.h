#pragma once

#include <QFileSystemWatcher>
#include <QStringList>
#include <QTimer>
#include <QWidget>

namespace Quillet {

class Alerte;
struct Contexte;

// A line over the window as soon as somebody else has changed the sellers' own data: another computer that shares the
// folder, an editor. Hidden else; it offers to read them again.
class VeilleDesDonnees : public QWidget
{
    Q_OBJECT

public:
    explicit VeilleDesDonnees(const Contexte &contexte, QWidget *parent = nullptr);

private:
    void regarder();
    void surveiller();
    void relire();

    const Contexte &contexte_;
    Alerte *avis_;
    QFileSystemWatcher guetteur_;
    QTimer repos_; // runs while files are being written, one after the other
};

} // namespace Quillet
