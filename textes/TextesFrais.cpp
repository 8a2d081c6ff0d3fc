#include "textes/TextesFrais.h"

#include "model/Format.h"

namespace Quillet {

QString TextesFrais::region(RegionPaypal region)
{
    switch (region) {
    case RegionPaypal::eee:
        return QStringLiteral("Europe (EEE)");
    case RegionPaypal::royaumeUni:
        return QStringLiteral("Royaume-Uni");
    case RegionPaypal::autres:
        return QStringLiteral("Autre pays");
    }
    Q_UNREACHABLE();
}

QString TextesFrais::formule(Taux taux, Centimes fixe)
{
    return Format::pourcentage(taux) + QStringLiteral(" + ") + Format::euros(fixe);
}

} // namespace Quillet
