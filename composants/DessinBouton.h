#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QWidget;

// Push buttons, and what is pressed like one.
namespace Quillet::DessinBouton {

void fond(QPainter &peintre, const QStyleOption &option, const QWidget *widget);
// The icon and the text side by side, centred together.
void contenu(QPainter &peintre, const QStyleOptionButton &option, const QWidget *widget);
// A tool's, which shows only under the pointer.
void outil(QPainter &peintre, const QStyleOption &option);

} // namespace Quillet::DessinBouton
