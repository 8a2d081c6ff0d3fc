#include "echanges/TeinteDominante.h"

#include <QColor>

#include <algorithm>
#include <array>

namespace Quillet {

namespace {

constexpr QSize echantillon(48, 72);

struct Famille
{
    qint64 poids = 0;
    qint64 rouge = 0;
    qint64 vert = 0;
    qint64 bleu = 0;
};

constexpr std::size_t famille(QRgb point)
{
    constexpr auto huitieme = [](int composante) { return static_cast<std::size_t>(composante / 32); };
    return (huitieme(qRed(point)) * 8 + huitieme(qGreen(point))) * 8 + huitieme(qBlue(point));
}

// Paper and ink fill most covers, and say nothing of them.
qint64 poids(QRgb point)
{
    const QColor couleur(point);
    const int vivacite = couleur.hsvSaturation() * couleur.value() / 255;
    const bool papierOuEncre = couleur.value() < 40 || (couleur.value() > 224 && couleur.hsvSaturation() < 48);
    return papierOuEncre ? 1 : 12 + vivacite;
}

} // namespace

QList<qint64> TeinteDominante::de(const QImage &image)
{
    const QImage petite = image.scaled(echantillon, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_ARGB32);
    std::array<Famille, 512> familles{};
    for (int y = 0; y < petite.height(); ++y)
        for (int x = 0; x < petite.width(); ++x) {
            const QRgb point = petite.pixel(x, y);
            if (qAlpha(point) < 128)
                continue;
            Famille &sienne = familles[famille(point)];
            const qint64 compte = poids(point);
            sienne.poids += compte;
            sienne.rouge += compte * qRed(point);
            sienne.vert += compte * qGreen(point);
            sienne.bleu += compte * qBlue(point);
        }
    const auto premiere = std::ranges::max_element(familles, {}, &Famille::poids);
    if (premiere->poids == 0)
        return {128, 128, 128}; // nothing to be seen
    const auto moyenne = [&](qint64 somme) { return (somme + premiere->poids / 2) / premiere->poids; };
    return {moyenne(premiere->rouge), moyenne(premiere->vert), moyenne(premiere->bleu)};
}

} // namespace Quillet
