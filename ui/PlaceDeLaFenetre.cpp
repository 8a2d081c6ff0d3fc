#include "ui/PlaceDeLaFenetre.h"

#include <QStringList>

#include <algorithm>

namespace Quillet {

namespace {

const QString motAgrandie = QStringLiteral("agrandie");
constexpr int leBoutDuMonde = 32'767; // px, of window systems

} // namespace

std::optional<PlaceDeLaFenetre> PlaceDeLaFenetre::lue(const QString &texte)
{
    QStringList mots = texte.split(u' ');
    PlaceDeLaFenetre place;
    if (mots.size() == 5 && mots.constLast() == motAgrandie) {
        place.agrandie = true;
        mots.removeLast();
    }
    QList<int> nombres;
    for (const QString &mot : std::as_const(mots)) {
        bool entier = false;
        const int nombre = mot.toInt(&entier);
        if (!entier || nombre < -leBoutDuMonde || nombre > leBoutDuMonde)
            return std::nullopt;
        nombres.append(nombre);
    }
    if (nombres.size() != 4 || nombres[2] <= 0 || nombres[3] <= 0)
        return std::nullopt;
    place.cadre = QRect(nombres[0], nombres[1], nombres[2], nombres[3]);
    return place;
}

QString PlaceDeLaFenetre::texte() const
{
    const QString nombres =
        QStringLiteral("%1 %2 %3 %4").arg(cadre.x()).arg(cadre.y()).arg(cadre.width()).arg(cadre.height());
    return agrandie ? nombres + u' ' + motAgrandie : nombres;
}

QRect PlaceDeLaFenetre::dans(const QList<QRect> &ecrans, QSize minimum) const
{
    const auto commun = [this](const QRect &ecran) {
        const QRect partage = ecran.intersected(cadre);
        return qint64{partage.width()} * partage.height();
    };
    const QRect ecran = *std::ranges::max_element(ecrans, {}, commun);
    QRect place(cadre.topLeft(), cadre.size().boundedTo(ecran.size()).expandedTo(minimum));
    place.moveRight(std::min(place.right(), ecran.right()));
    place.moveBottom(std::min(place.bottom(), ecran.bottom()));
    place.moveLeft(std::max(place.left(), ecran.left()));
    place.moveTop(std::max(place.top(), ecran.top()));
    return place;
}

} // namespace Quillet
