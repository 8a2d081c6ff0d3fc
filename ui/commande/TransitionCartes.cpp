#include "ui/commande/TransitionCartes.h"

#include "composants/Ressort.h"
#include "ui/commande/CarteLivre.h"
#include "ui/couvertures/ImagesCouvertures.h"

#include <QPainter>

#include <algorithm>

namespace Quillet {

namespace {

constexpr double echelleInitiale = 0.96;

QPixmap image(CarteLivre *carte)
{
    QPixmap image(carte->size() * carte->devicePixelRatioF());
    image.setDevicePixelRatio(carte->devicePixelRatioF());
    image.fill(Qt::transparent);
    carte->render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

} // namespace

QList<TransitionCartes::Instantane> TransitionCartes::instantanes(const QList<CarteLivre *> &cartes)
{
    QList<Instantane> images;
    for (CarteLivre *carte : cartes) {
        if (carte->visibleRegion().isEmpty())
            continue;
        images.append({carte, image(carte), carte->geometry()});
    }
    return images;
}

void TransitionCartes::jouer(const QList<Instantane> &sortantes, const QList<Instantane> &entrantes,
                             const ImagesCouvertures &images, QWidget *grille)
{
    auto *transition = new TransitionCartes(sortantes, entrantes, grille);
    connect(&images, &ImagesCouvertures::prete, transition, &TransitionCartes::reprendre);
    transition->show();
    transition->progres_->vers(1);
    if (transition->progres_->state() == QAbstractAnimation::Stopped)
        delete transition; // no motion wanted
}

void TransitionCartes::arreter(QWidget *grille)
{
    qDeleteAll(grille->findChildren<TransitionCartes *>(Qt::FindDirectChildrenOnly));
}

TransitionCartes::TransitionCartes(const QList<Instantane> &sortantes, const QList<Instantane> &entrantes,
                                   QWidget *grille)
    : QWidget(grille), sortantes_(sortantes), entrantes_(entrantes), progres_(new Ressort(Ressorts::action, this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    QRect place;
    for (const auto &cartes : {sortantes_, entrantes_})
        for (const Instantane &carte : cartes)
            place |= carte.place;
    setGeometry(place);
    connect(progres_, &QAbstractAnimation::finished, this, &QObject::deleteLater);
}

void TransitionCartes::reprendre(const QString &couverture)
{
    for (Instantane &entrante : entrantes_)
        if (entrante.carte && entrante.carte->livre().couverture == couverture)
            entrante.image = image(entrante.carte);
}

void TransitionCartes::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto dessiner = [&](const Instantane &carte, double presence) {
        const double echelle = echelleInitiale + (1 - echelleInitiale) * presence;
        const QPointF centre = QRectF(carte.place).center() - QPointF(pos());
        peintre.save();
        peintre.setOpacity(std::clamp(presence, 0.0, 1.0));
        peintre.translate(centre);
        peintre.scale(echelle, echelle);
        peintre.drawPixmap(QPointF(-carte.place.width() / 2.0, -carte.place.height() / 2.0), carte.image);
        peintre.restore();
    };
    for (const Instantane &carte : sortantes_)
        dessiner(carte, 1 - progres_->valeur());
    for (const Instantane &carte : entrantes_)
        dessiner(carte, progres_->valeur());
}

} // namespace Quillet
