#pragma once

#include <QString>

namespace Quillet::AdresseMail {

// The one plain address that a text gives: alone, behind a name ("Ada <ada@exemple.fr>") or as a link
// ("mailto:ada@exemple.fr?subject=…"). Empty when it gives none, several, or anything that could name another
// recipient, a header or a file.
QString dans(const QString &texte);

} // namespace Quillet::AdresseMail
