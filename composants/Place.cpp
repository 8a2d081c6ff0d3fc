#include "composants/Place.h"

#include <QScreen>
#include <QWidget>

namespace Quillet {

QSize Place::surLEcran(const QWidget *fenetre)
{
    return de(fenetre->screen());
}

QSize Place::de(const QScreen *ecran)
{
    constexpr QSize cadre(8, 40); // of common desktops, px
    return ecran->availableSize() - cadre;
}

} // namespace Quillet
