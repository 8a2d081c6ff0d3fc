#include "ui/tarifs/ChiffreAVerifier.h"

#include "composants/Icone.h"
#include "composants/Theme.h"
#include "model/Format.h"

#include <QPainter>

namespace Quillet {

namespace {

constexpr int cote = 15; // of the triangle, for text of 10 pt
constexpr int espace = 5;

} // namespace

ChiffreAVerifier::ChiffreAVerifier(const QString &texte) : LibelleChiffre(texte)
{
    setFont(Theme::enGras(font()));
    setAccessibleName(QStringLiteral("%1, à vérifier").arg(Format::dit(texte)));
    setToolTip(QStringLiteral("À vérifier"));
}

QSize ChiffreAVerifier::sizeHint() const
{
    return LibelleChiffre::sizeHint() + QSize(Theme::aLaTaille(cote) + espace, 0);
}

void ChiffreAVerifier::paintEvent(QPaintEvent *evenement)
{
    LibelleChiffre::paintEvent(evenement);
    const int triangle = Theme::aLaTaille(cote);
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    Icone::peindre(peintre, QStringLiteral("exclamationmark.triangle"),
                   QRectF(width() - sizeHint().width(), (height() - triangle) / 2.0, triangle, triangle),
                   Theme::orange(palette()));
}

} // namespace Quillet
