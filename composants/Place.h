#pragma once

#include <QSize>

class QScreen;
class QWidget;

namespace Quillet::Place {

// What a window may take of its screen, its frame left out: the frame is not known before the window shows.
QSize surLEcran(const QWidget *fenetre);
// The same of any window there.
QSize de(const QScreen *ecran);

} // namespace Quillet::Place
