#pragma once

#include <QImage>
#include <QList>

// The colour by which a cover is remembered.
namespace Quillet::TeinteDominante {

// Red, green, blue: of the family of colours that has the most of the picture, lively ones before greys, and these
// before white and black. The same picture always gives the same.
QList<qint64> de(const QImage &image);

} // namespace Quillet::TeinteDominante
