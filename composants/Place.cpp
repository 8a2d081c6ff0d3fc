#include "composants/Place.h"

#include <QScreen>
#include <QWidget>

namespace Quillet {

QSize Place::surLEcran(const QWidget *fenetre)
{
    constexpr QSize cadre(8, 40); // of common desktops, px
    return fenetre->screen()->availableSize() - cadre;
}

} // namespace Quillet
