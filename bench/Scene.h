#pragma once

#include "bench/Echantillon.h"
#include "bench/Temoin.h"
#include "ui/QuilletApp.h"
#include "visite/SiteDeLaVisite.h"

#include <functional>

class QAbstractScrollArea;

namespace Quillet {

// The real window on the bench's own data and day, worked through the window system's events. Both public pages
// announce changes, and where updates should be there is nothing.
class Scene
{
public:
    Scene(Temoin &temoin, const Echantillon &echantillon);

    [[nodiscard]] Fenetre &fenetre() { return fenetre_; }
    [[nodiscard]] Commande &commande() { return quillet_.commande(); }
    // Found by its name, scrolled into sight. The program ends when there is none.
    QWidget &controle(const QString &nom);
    QPoint milieu(const QWidget &controle);

    void survoler(const QPoint &position);
    void enfoncer(const QPoint &position);
    void relacher(const QPoint &position);
    void cliquer(const QPoint &position);
    // A button acts when it is let go: what it looks like pressed has been painted before.
    void tenir(const QPoint &position);
    // Ends every motion, then waits until no picture is still to come.
    void reposer();

    // Milliseconds from the gesture to the end of the next image.
    double chronometrer(const std::function<void()> &geste);
    // The same to the first image of the dialog that the gesture opens, which is closed again.
    double chronometrerLOuverture(const std::function<void()> &geste);
    // One notch of the wheel every sixtieth of a second, up and down again. Each is counted from the time it was due,
    // so that whatever keeps the window from answering counts too.
    QList<double> defiler(QAbstractScrollArea &zone, int crans);

private:
    double chronometrer(const std::function<void()> &geste, Temoin::Guet guet);
    [[nodiscard]] double jusquALImage(Temoin::Horloge::time_point debut) const;

    Temoin &temoin_;
    SiteDeLaVisite site_;
    QTemporaryDir cache_;
    QuilletApp quillet_;
    Fenetre &fenetre_;
};

} // namespace Quillet
