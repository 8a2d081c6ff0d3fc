#pragma once

#include "model/Livre.h"

#include <QStringList>

namespace Quillet {

// What the return of every book to its shipped values would undo.
namespace TextesRetour {

// What would be lost, a line a book, the first few of them; empty: nothing.
QStringList pertes(const QList<Livre> &actuels, const QList<Livre> &livres);

} // namespace TextesRetour

} // namespace Quillet
