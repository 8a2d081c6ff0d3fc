#pragma once

#include <QString>

namespace Quillet::AdressePostale {

// An address copied from a page or a message, without its blank lines, nor the blanks around the others. A single line
// keeps the break it was copied with: the next one is to follow.
QString sansVides(const QString &texte);

} // namespace Quillet::AdressePostale
