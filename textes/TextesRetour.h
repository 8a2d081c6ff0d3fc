#pragma once

#include "model/Livre.h"

#include <QStringList>

// What the return of every book to its shipped values would undo.
namespace Quillet::TextesRetour {

// What would be lost, a line a book, the first few of them; empty: nothing.
QStringList pertes(const QList<Livre> &actuels, const QList<Livre> &livres);

} // namespace Quillet::TextesRetour
