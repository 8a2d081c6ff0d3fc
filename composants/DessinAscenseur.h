#pragma once

#include <QStyle>

class QPainter;
class QStyleOptionSlider;

// A slim scroll bar: a handle alone, without buttons at its ends.
namespace Quillet::DessinAscenseur {

// Nothing where there is nothing to scroll.
void peindre(QPainter &peintre, const QStyleOptionSlider &option);
// Where a part of it stands; empty for the parts that it does not have.
QRect partie(const QStyleOptionSlider &option, QStyle::SubControl partie);

} // namespace Quillet::DessinAscenseur
