#pragma once

#include "documents/Facture.h"

#include <QColor>
#include <QSize>

class QPainter;

// The invoice as one A4 page, painted alike on the screen, in a PDF and on paper.
namespace Quillet::PageFacture {

struct Couleurs
{
    QColor encre;
    QColor gris;   // secondary texts
    QColor filet;  // rules
    QColor accent; // the seller's mark on the page
};

inline constexpr QSize taille{595, 842}; // points

// Those of a PDF, whatever the screen shows.
Couleurs imprimees();

// In points from the painter's origin. What is too long for the page is drawn smaller, never cut.
void peindre(QPainter &peintre, const Facture &facture, const Couleurs &couleurs);
// All that is written there.
QString textes(const Facture &facture);

} // namespace Quillet::PageFacture
