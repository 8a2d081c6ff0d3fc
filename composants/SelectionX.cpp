#include "composants/SelectionX.h"

#include <cstdlib>
#include <memory>

namespace Quillet {

namespace {

template <typename T>
using DeXcb = std::unique_ptr<T, decltype([](T *reponse) { std::free(reponse); })>;

} // namespace

xcb_atom_t SelectionX::atome(xcb_connection_t *x, std::string_view nom)
{
    const DeXcb<xcb_intern_atom_reply_t> lu(
        xcb_intern_atom_reply(x, xcb_intern_atom(x, false, static_cast<uint16_t>(nom.size()), nom.data()), nullptr));
    return lu ? lu->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t SelectionX::tenant(xcb_connection_t *x, xcb_atom_t selection)
{
    const DeXcb<xcb_get_selection_owner_reply_t> lu(
        xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, selection), nullptr));
    return lu ? lu->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace Quillet
