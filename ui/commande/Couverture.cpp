#include "ui/commande/Couverture.h"

#include "composants/Chiffres.h"
#include "composants/Dessin.h"
#include "composants/Ressort.h"
#include "composants/Theme.h"
#include "ui/couvertures/DessinCouverture.h"
#include "ui/couvertures/ImagesCouvertures.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace Quillet {

namespace {

struct Ombre
{
    double opacite;
    double rayon;
    double decalage;
};
constexpr Ombre auRepos{0.3, 12, 8};
constexpr Ombre enLAir{0.55, 24, 16};

// Whatever the width of a card, its picture is read once, at the largest: a resize reads nothing anew.
constexpr QSizeF tailleDeLecture(210, 315);

constexpr double angle = -14 * std::numbers::pi / 180;
constexpr double perspective = 0.45;
constexpr double agrandissement = 0.035;
using DessinCouverture::opaciteIndisponible;

} // namespace

Couverture::Couverture(Livre livre, ImagesCouvertures &images, QWidget *parent)
    : QAbstractButton(parent),
      livre_(std::move(livre)),
      images_(images),
      soulevement_(new Ressort(Ressorts::survol, this)),
      pastille_(new Ressort(Ressorts::action, this))
{
    setFocusPolicy(Qt::StrongFocus);
    connect(&images_, &ImagesCouvertures::prete, this, [this](const QString &couverture) {
        if (couverture.isEmpty() || couverture == livre_.couverture)
            oublierLeDessin();
    });
}

void Couverture::montrer(const Livre &livre, int quantite)
{
    const bool autreDessin =
        livre.couverture != livre_.couverture || livre.teinte != livre_.teinte || livre.disponible != livre_.disponible;
    livre_ = livre;
    if (autreDessin) {
        ombreAuRepos_ = ombreSoulevee_ = {};
        oublierLeDessin();
    }
    // The badge keeps its last number while it shrinks away.
    if (quantite > 0)
        quantite_ = quantite;
    pastille_->vers(quantite > 0 ? 1 : 0);
    if (!livre.disponible)
        soulever(false);
    setCursor(livre.disponible ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void Couverture::soulever(bool oui)
{
    soulevee_ = oui && livre_.disponible;
    soulevement_->vers(soulevee_ ? 1 : 0);
}

QRectF Couverture::cadre() const
{
    return QRectF(rect()).adjusted(debord, debord, -debord, -debordBas);
}

bool Couverture::hitButton(const QPoint &position) const
{
    return cadre().contains(position);
}

void Couverture::resizeEvent(QResizeEvent *)
{
    ombreAuRepos_ = ombreSoulevee_ = {};
    oublierLeDessin();
}

void Couverture::oublierLeDessin()
{
    dessin_ = {};
    update();
}

void Couverture::dessiner(qreal densite)
{
    if (dessin_.isNull() || dessin_.devicePixelRatio() != densite)
        dessin_ = DessinCouverture::dessin(livre_, cadre().size(), tailleDeLecture, densite, images_);
}

void Couverture::peindreOmbre(QPainter &peintre)
{
    const double part = std::clamp(soulevement_->valeur(), 0.0, 1.0);
    const qreal densite = peintre.device()->devicePixelRatioF();
    const auto peindre = [&](const Ombre &ombre, QPixmap &cache, double opacite) {
        if (opacite <= 0)
            return;
        if (cache.isNull() || cache.devicePixelRatio() != densite) {
            const QColor teinte = Dessin::transparente(DessinCouverture::couleur(livre_), ombre.opacite);
            cache = Dessin::ombre(cadre().size(), ombre.rayon, teinte, densite);
        }
        peintre.setOpacity(opacite * (livre_.disponible ? 1 : opaciteIndisponible));
        peintre.drawPixmap(pos() + cadre().topLeft() - QPointF(ombre.rayon, ombre.rayon - ombre.decalage), cache);
    };
    peindre(auRepos, ombreAuRepos_, 1 - part);
    peindre(enLAir, ombreSoulevee_, part);
    peintre.setOpacity(1);
}

// Hinged on its left edge and grown from its bottom edge.
QTransform Couverture::inclinaison() const
{
    const double part = soulevement_->valeur();
    const QRectF c = cadre();
    const double theta = angle * part;
    const double echelle = 1 + agrandissement * part;
    const double fuite = perspective / std::max(c.width(), c.height());
    const QPointF pied(c.center().x(), c.bottom());
    const QPointF charniere(c.left(), c.center().y());
    return QTransform::fromTranslate(-charniere.x(), -charniere.y())
           * QTransform(std::cos(theta), 0, fuite * std::sin(theta), 0, 1, 0, 0, 0, 1)
           * QTransform::fromTranslate(charniere.x(), charniere.y()) * QTransform::fromTranslate(-pied.x(), -pied.y())
           * QTransform::fromScale(echelle, echelle) * QTransform::fromTranslate(pied.x(), pied.y());
}

void Couverture::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    dessiner(devicePixelRatioF());
    peintre.save();
    if (soulevement_->valeur() != 0)
        peintre.setTransform(inclinaison(), true);
    peintre.setOpacity(livre_.disponible ? 1 : opaciteIndisponible);
    peintre.drawPixmap(cadre().topLeft(), dessin_);
    if (Dessin::focusVisible(this))
        Dessin::anneauDeFocus(peintre, cadre().adjusted(-4, -4, 4, 4), Theme::rayonCouverture + 4,
                              Theme::accentTexte(palette()));
    peintre.restore();
    if (pastille_->valeur() > 0.01)
        peindrePastille(peintre);
}

void Couverture::peindrePastille(QPainter &peintre) const
{
    const QFont police = Theme::enGras(Theme::encadre(), QFont::Bold);
    const QFontMetrics mesures(police);
    const QString nombre = QString::number(quantite_);
    const double cote = 30;
    const double largeur = std::max(cote, Chiffres::largeur(mesures, nombre) + 12.0);
    const QPointF centre(cadre().right() + 6 - largeur / 2 + 4, cadre().top() + cote / 2 - 10);
    peintre.save();
    peintre.translate(centre);
    peintre.scale(pastille_->valeur(), pastille_->valeur());
    peintre.setOpacity(std::clamp(pastille_->valeur(), 0.0, 1.0));
    const QRectF capsule(-largeur / 2, -cote / 2, largeur, cote);
    Dessin::ombreDouce(peintre, capsule);
    Dessin::aplat(peintre, capsule, cote / 2, Theme::accent(palette()));
    peintre.setFont(police);
    peintre.setPen(Qt::white);
    Chiffres::peindre(peintre, capsule, Qt::AlignCenter, nombre);
    peintre.restore();
}

} // namespace Quillet
