#include "composants/Interrupteur.h"

#include "composants/Dessin.h"
#include "composants/Ressort.h"
#include "composants/Theme.h"

#include <QPainter>

#include <utility>

namespace Quillet {

namespace {

constexpr int marge = 3; // room for the focus ring

QSize taille()
{
    return Theme::aLaTaille(QSize(38, 22));
}

} // namespace

Interrupteur::Interrupteur(std::optional<QColor> allume, QWidget *parent)
    : QCheckBox(parent), allume_(std::move(allume)), position_(new Ressort(Ressorts::action, this))
{
    connect(this, &QCheckBox::toggled, this, [this](bool oui) { position_->vers(oui ? 1 : 0); });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Interrupteur::sizeHint() const
{
    return taille() + QSize(2 * marge, 2 * marge);
}

bool Interrupteur::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void Interrupteur::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QRectF piste(QPointF(marge, marge), taille());
    const double position = position_->valeur();
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(Dessin::melange(Dessin::melange(Theme::filet(palette()), Theme::secondaire(palette()), 0.35),
                                     allume_.value_or(Theme::accent(palette())), position));
    peintre.drawRoundedRect(piste, piste.height() / 2, piste.height() / 2);

    const double rayon = piste.height() / 2 - 2;
    const double course = piste.width() - piste.height();
    const QPointF centre(piste.left() + piste.height() / 2 + course * position, piste.center().y());
    peintre.setBrush(QColor(0, 0, 0, 40));
    peintre.drawEllipse(centre + QPointF(0, 1), rayon, rayon);
    peintre.setBrush(Qt::white);
    peintre.drawEllipse(centre, rayon, rayon);
    if (Dessin::focusVisible(this))
        Dessin::anneauDeFocus(peintre, piste.adjusted(-marge, -marge, marge, marge), piste.height() / 2 + marge,
                              Theme::accentTexte(palette()));
}

} // namespace Quillet
