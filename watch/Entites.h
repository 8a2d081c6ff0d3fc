#pragma once

#include <QString>

namespace Quillet::TexteHTML {

// "&eacute;", "&#233;" and "&#xE9;" become "é"; what is not known stays as written.
QString decoderEntites(QStringView texte);

} // namespace Quillet::TexteHTML
