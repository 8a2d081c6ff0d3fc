#pragma once

#include <QString>

namespace Quillet {

// As it may be typed in a search: nobody types capitals, accents, ligatures or curly apostrophes there.
QString sansAccents(const QString &texte);

} // namespace Quillet
