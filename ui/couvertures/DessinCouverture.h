#pragma once

#include "model/Livre.h"

#include <QColor>
#include <QImage>
#include <QPixmap>

namespace Quillet {

class ImagesCouvertures;

namespace DessinCouverture {

// Height of a cover over its width.
inline constexpr double proportion = 1.5;
inline constexpr double opaciteIndisponible = 0.55;

// The book's own colour; its grey when the book is sold out.
QColor couleur(const Livre &livre);

// The cover with its binding: the picture, or the book's colour until there is one; grey when the book is sold out.
// The picture is read at `tailleDeLecture` and scaled to `taille`, both px of the screen; `densite`: of the device, per
// px.
QPixmap dessin(const Livre &livre, const QSizeF &taille, const QSizeF &tailleDeLecture, qreal densite,
               ImagesCouvertures &images);
// The same of a picture that is at hand, in the pixels of the device; null: of the colour.
QPixmap dessin(const Livre &livre, const QSizeF &taille, qreal densite, const QImage &image);

} // namespace DessinCouverture

} // namespace Quillet
