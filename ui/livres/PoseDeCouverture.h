#pragma once

#include "model/Livre.h"

namespace Quillet {

struct Contexte;
struct CouverturePrete;

// The book with a new cover, whose picture has been written to the sellers' own folder: so a book never names a picture
// that is not there. Throws ErreurStockage.
Livre avecCouverture(const Contexte &contexte, Livre livre, const CouverturePrete &couverture);

} // namespace Quillet
