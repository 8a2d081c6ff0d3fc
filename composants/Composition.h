#pragma once

namespace Quillet::Composition {

// Whether windows may be seen through: a plain X server draws black there.
bool active();

} // namespace Quillet::Composition
