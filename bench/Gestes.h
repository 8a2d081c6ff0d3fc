#pragma once

#include <QList>
#include <QString>

namespace Quillet {

class Couverture;
class Scene;

// What a person does at the window, one gesture at a time. Each gives the milliseconds from the window system's event
// to the end of the image that shows its effect; all motion is over before. `rang` counts the times it is played.
namespace Gestes {

struct Geste
{
    QString nom;    // as an argument
    QString enMots; // as a row of the report
    void (*preparer)(Scene &scene);
    double (*jouer)(Scene &scene, int rang);
};
// On the order screen: what is done to every order.
QList<Geste> frequents();
// The sheets and dialogs, from the click to their first image; they are closed again.
QList<Geste> feuilles();
// Going to a screen from the order's; the first time it is built.
QList<Geste> ecrans();
// A book's new prices carried to all its buttons, on the books' screen; undone again.
Geste report();

// Those that a click can reach; at least one.
QList<Couverture *> couverturesVisibles(Scene &scene);

} // namespace Gestes

} // namespace Quillet
