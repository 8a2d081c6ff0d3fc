#pragma once

#include <QString>

namespace Quillet::AdresseMail {

// Whether the text, blanks around it aside, is one plain address: nothing that could name another recipient, a header
// or a file.
bool estSeule(const QString &texte);

} // namespace Quillet::AdresseMail
