#pragma once

#include <QString>

// The end of a zip, which announces how long its list of entries is: libzip would keep room for as many as that before
// anything else can be asked of it.
namespace Quillet::FinDeZip {

// Throws Echec when it announces more than an archive of ours could have, or is not that of a zip.
void verifier(const QString &chemin);

} // namespace Quillet::FinDeZip
