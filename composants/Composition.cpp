#include "composants/Composition.h"

#include "composants/SelectionX.h"

#include <QGuiApplication>

namespace Quillet {

bool Composition::active()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *x = x11 ? x11->connection() : nullptr;
    if (!x)
        return true; // Wayland composes always, and what is drawn on no screen can be seen through
    return SelectionX::tenant(x, SelectionX::atome(x, "_NET_WM_CM_S0")) != XCB_WINDOW_NONE;
}

} // namespace Quillet
