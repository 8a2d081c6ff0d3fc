#pragma once

#include <QByteArray>

namespace Quillet::ControleSvg {

// Throws Echec for a drawing that is cut or damaged, or that makes use of other files: they would not come with it,
// and they are none of its business.
void verifier(const QByteArray &octets);

} // namespace Quillet::ControleSvg
