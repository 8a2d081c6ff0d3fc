#pragma once

#include <functional>

class QFont;
class QWidget;

// The size of the text may change while the program runs.
namespace Quillet::TailleDuTexte {

// The program's font, at once in all that is open: a font of its own that a widget was given keeps its proportion.
void changer(const QFont &police);

// Does it now, and again at each change of the text's size: for a length that a widget is told, and does not work out.
void suivre(QWidget *widget, std::function<void()> regle);

} // namespace Quillet::TailleDuTexte
