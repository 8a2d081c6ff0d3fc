#pragma once

class QSplitter;
class QWidget;

namespace Quillet::Partage {

// Two panes side by side, read from left to right; neither can be folded away. `fixe`, one of the two, starts at
// `largeur` and keeps its width when the window grows.
QSplitter *entre(QWidget *gauche, QWidget *droite, QWidget *fixe, int largeur);

} // namespace Quillet::Partage
