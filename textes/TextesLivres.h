#pragma once

#include "model/Donnees.h"

#include <QString>

// What the books' screen and the cards of an order say of the books: texts only, laid out by the widgets.
namespace Quillet::TextesLivres {

// "14 livres"
QString nombre(qsizetype livres);
// "14 × 21 cm, broché · 288 pages"
QString fabrication(const Livre &livre);
// "vendu par Davrel"; empty when there is but one seller.
QString vendu(Vendeur vendeur, const Donnees &donnees);
// "Anselme Davrel · vendu par Davrel"
QString origine(const Livre &livre, const Donnees &donnees);
// How it was made, and its ISBN.
QString edition(const Livre &livre);
// "355 g", or that the book was never weighed.
QString poids(const Livre &livre);
QString epuise();
// Of the seller that the order is for.
QString sansLivre(const Donnees &donnees);
// The whole row, for a screen reader; `vendu` as above.
QString enMots(const Livre &livre, const QString &vendu);

} // namespace Quillet::TextesLivres
