#pragma once

#include "echanges/CouverturePrete.h"

namespace Quillet::PreparationCouverture {

// The formats that this system reads, in a sentence: "Quillet prend les images SVG, PNG et JPEG."
QString formatsPris();
// More points than are taken of anybody's picture.
bool demesuree(QSize taille);

// Turned upright, cropped about its middle, scaled down to the size of covers, packed anew. Throws Echec, whose
// sentence says what is wrong with the picture and what is taken. Whoever made the picture may have wanted it to last
// or to fill the memory: to be called in a process of its own (LectureDeCouverture).
CouverturePrete de(const QByteArray &octets);

} // namespace Quillet::PreparationCouverture
