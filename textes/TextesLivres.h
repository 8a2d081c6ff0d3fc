#pragma once

#include "model/Livre.h"

#include <QString>

// What the books' screen and the cards of an order say of the books: texts only, laid out by the widgets.
namespace Quillet::TextesLivres {

// "14 livres"
QString nombre(qsizetype livres);
// "14 × 21 cm, broché · 288 pages"
QString fabrication(const Livre &livre);
// "Anselme Davrel · vendu par Davrel"
QString origine(const Livre &livre);
// How it was made, and its ISBN.
QString edition(const Livre &livre);
// "355 g", or that the book was never weighed.
QString poids(const Livre &livre);
QString epuise();
// The whole row, for a screen reader.
QString enMots(const Livre &livre);

} // namespace Quillet::TextesLivres
