#pragma once

#include <QString>

namespace Entites {

// "&eacute;", "&#233;" and "&#xE9;" become "é"; what is not known stays as written.
QString decoder(QStringView texte);

} // namespace Entites
