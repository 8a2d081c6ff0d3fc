#pragma once

#include <xcb/xcb.h>

#include <string_view>

// Who holds what on an X server.
namespace Quillet::SelectionX {

xcb_atom_t atome(xcb_connection_t *x, std::string_view nom);
// XCB_WINDOW_NONE when nobody does.
xcb_window_t tenant(xcb_connection_t *x, xcb_atom_t selection);

} // namespace Quillet::SelectionX
