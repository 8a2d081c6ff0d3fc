#pragma once

#include "echanges/PiecesDArchive.h"

#include <QString>

// The end of a zip, which announces how long its list of entries is: libzip would keep room for as many as that before
// anything else can be asked of it.
namespace Quillet::FinDeZip {

// More than the longest names that one meets.
constexpr qint64 listeMaximale = PiecesDArchive::nombre * 500;

// More than an archive of ours could have. Throws ErreurStockage.
bool annonceTrop(const QString &chemin);

} // namespace Quillet::FinDeZip
