#include "composants/Chiffres.h"

#include <QFontMetrics>
#include <QPainter>

namespace Quillet {

int Chiffres::largeur(const QFontMetrics &mesures, QChar caractere)
{
    return mesures.horizontalAdvance(caractere.isDigit() ? QChar(u'0') : caractere);
}

int Chiffres::largeur(const QFontMetrics &mesures, const QString &texte)
{
    int somme = 0;
    for (const QChar caractere : texte)
        somme += largeur(mesures, caractere);
    return somme;
}

QFont Chiffres::ajustee(QFont police, const QString &texte, int place)
{
    constexpr double pas = 0.5; // pt
    while (place > 0 && police.pointSizeF() > 2 * pas && largeur(QFontMetrics(police), texte) > place)
        police.setPointSizeF(police.pointSizeF() - pas);
    return police;
}

void Chiffres::peindre(QPainter &peintre, QChar caractere, double x, double ligneDeBase)
{
    const QFontMetrics mesures = peintre.fontMetrics();
    const double retrait = (largeur(mesures, caractere) - mesures.horizontalAdvance(caractere)) / 2.0;
    peintre.drawText(QPointF(x + retrait, ligneDeBase), caractere);
}

void Chiffres::peindre(QPainter &peintre, const QRectF &cadre, Qt::Alignment alignement, const QString &texte)
{
    const QFontMetrics mesures = peintre.fontMetrics();
    const double reste = cadre.width() - largeur(mesures, texte);
    double x = cadre.left();
    if (alignement & Qt::AlignRight)
        x += reste;
    else if (alignement & Qt::AlignHCenter)
        x += reste / 2;
    const double ligneDeBase = cadre.center().y() + (mesures.ascent() - mesures.descent()) / 2.0;
    for (const QChar caractere : texte) {
        peindre(peintre, caractere, x, ligneDeBase);
        x += largeur(mesures, caractere);
    }
}

} // namespace Quillet
