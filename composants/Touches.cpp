#include "composants/Touches.h"

#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/Theme.h"

#include <QPainter>

#include <algorithm>
#include <functional>

namespace Quillet {

namespace {

constexpr int marge = 7; // on either side of a key's text
constexpr int rayon = 4;
constexpr int entreTouches = 3;
constexpr int entreManieres = 10;

int hauteur()
{
    return QFontMetrics(Theme::legende()).height() + 6;
}

// Calls with each cap's place; returns how far they reach.
int parcourir(const QList<QStringList> &manieres, const std::function<void(const QRect &, const QString &)> &poser)
{
    const QFontMetrics mesures(Theme::legende());
    int x = 0;
    for (const QStringList &maniere : manieres) {
        for (const QString &touche : maniere) {
            const int largeur = std::max(hauteur(), mesures.horizontalAdvance(touche) + 2 * marge);
            poser({x, 0, largeur, hauteur()}, touche);
            x += largeur + entreTouches;
        }
        x += entreManieres - entreTouches;
    }
    return std::max(0, x - entreManieres);
}

} // namespace

Touches::Touches(const QStringList &manieres, QWidget *parent) : QWidget(parent)
{
    for (const QString &maniere : manieres)
        manieres_.append(maniere == u'+' ? QStringList(maniere) : maniere.split(u'+'));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    LecteurDEcran::jouer(this, QAccessible::StaticText);
    setAccessibleName(manieres.join(QStringLiteral(" ou ")));
}

QSize Touches::sizeHint() const
{
    return {parcourir(manieres_, [](const QRect &, const QString &) {}), hauteur()};
}

void Touches::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setFont(Theme::legende());
    parcourir(manieres_, [&](const QRect &place, const QString &touche) {
        Dessin::encadre(peintre, place, rayon, Theme::remplissage(palette()), Theme::filet(palette()));
        peintre.setPen(palette().color(QPalette::WindowText));
        peintre.drawText(place, Qt::AlignCenter, touche);
    });
}

} // namespace Quillet
