#pragma once

#include <QFont>
#include <QString>

class QFontMetrics;
class QPainter;
class QRectF;

// Figures in cells of one width, so that they line up whatever the font's own digits do.
namespace Quillet::Chiffres {

int largeur(const QFontMetrics &mesures, QChar caractere);
int largeur(const QFontMetrics &mesures, const QString &texte);
// `police`, made smaller where the text would not fit into `place` px.
QFont ajustee(QFont police, const QString &texte, int place);
// One character, centred in its cell whose left edge is `x`.
void peindre(QPainter &peintre, QChar caractere, double x, double ligneDeBase);
// The whole text; vertically it is always centred.
void peindre(QPainter &peintre, const QRectF &cadre, Qt::Alignment alignement, const QString &texte);

} // namespace Quillet::Chiffres
