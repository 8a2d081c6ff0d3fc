#pragma once

#include <QString>

namespace Quillet::NomDeFichier {

// What a title is called as a file, on any system: "Le Phare de sel" gives "le-phare-de-sel", a title without a Latin
// letter or a digit gives "livre". At most sixty letters.
QString de(const QString &titre);

} // namespace Quillet::NomDeFichier
