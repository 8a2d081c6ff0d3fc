#pragma once

class QPainter;
class QPalette;
class QRectF;

namespace Quillet {

struct Facture;

// The invoice's page as the screen shows it: a sheet in the platform's colours, by night too.
void peindreLaPage(QPainter &peintre, const Facture &facture, const QRectF &cadre, const QPalette &palette);

} // namespace Quillet
