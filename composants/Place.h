#pragma once

#include <QSize>

class QWidget;

namespace Quillet::Place {

// What a window may take of its screen, its frame left out: the frame is not known before the window shows.
QSize surLEcran(const QWidget *fenetre);

} // namespace Quillet::Place
