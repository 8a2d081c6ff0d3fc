#include "composants/DessinChamp.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/Theme.h"

#include <QAbstractSpinBox>
#include <QPainter>
#include <QStyleOption>

namespace Quillet {

namespace {

constexpr int rayon = 6;

} // namespace

void DessinChamp::fond(QPainter &peintre, const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    const bool actif = option.state.testFlag(QStyle::State_HasFocus);
    const qreal epaisseur = actif ? Dessin::epaisseurDAnneau : Dessin::trait(peintre);
    peintre.setPen(QPen(actif ? Theme::accentTexte(palette) : Theme::filet(palette), epaisseur));
    peintre.setBrush(Dessin::melange(Theme::carte(palette), palette.color(QPalette::Window), 0.5));
    const qreal retrait = epaisseur / 2;
    const QRectF cadre = Dessin::surLesPixels(peintre, option.rect);
    peintre.drawRoundedRect(cadre.adjusted(retrait, retrait, -retrait, -retrait), rayon, rayon);
}

bool DessinChamp::partieDUnAutre(const QStyleOption &option, const QWidget *champ)
{
    const auto *cadre = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    return cadre && cadre->lineWidth == 0 && champ && qobject_cast<const QAbstractSpinBox *>(champ->parentWidget());
}

void DessinChamp::chevrons(QPainter &peintre, const QRectF &place, const QPalette &palette)
{
    QRectF dessin(QPointF(), QSizeF(Theme::aLaTaille(QSize(14, 14))));
    dessin.moveCenter(place.center());
    Icone::peindre(peintre, QStringLiteral("chevron.up.chevron.down"), dessin, Theme::secondaire(palette));
}

void DessinChamp::texteChoisi(QPainter &peintre, const QStyleOptionComboBox &option, const QRect &place)
{
    const auto groupe = option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    peintre.setPen(option.palette.color(groupe, QPalette::ButtonText));
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, place.width()));
}

} // namespace Quillet
