#pragma once

#include <QString>

namespace Quillet::AdressePostale {

// An address copied from a page or a message, without its blank lines, nor the blanks around the others.
QString sansVides(const QString &texte);

} // namespace Quillet::AdressePostale
