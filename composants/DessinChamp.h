#pragma once

class QPainter;
class QPalette;
class QRect;
class QRectF;
class QStyleOption;
class QStyleOptionComboBox;
class QWidget;

// Fields to type in.
namespace Quillet::DessinChamp {

void fond(QPainter &peintre, const QStyleOption &option);
// Whether it stands within another control, which draws the frame.
bool partieDUnAutre(const QStyleOption &option, const QWidget *champ);
// The mark of what goes up and down, or offers a choice.
void chevrons(QPainter &peintre, const QRectF &place, const QPalette &palette);
// What a list of choices shows of them.
void texteChoisi(QPainter &peintre, const QStyleOptionComboBox &option, const QRect &place);

} // namespace Quillet::DessinChamp
