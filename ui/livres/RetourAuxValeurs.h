#pragma once

#include "model/Livre.h"

class QWidget;

// The return of every book to its shipped values.
namespace Quillet::RetourAuxValeurs {

// Says what would be lost, and asks. When nothing would, says so and is true: the user's file goes all the same.
bool accepte(const QList<Livre> &actuels, const QList<Livre> &livres, QWidget *parent);

} // namespace Quillet::RetourAuxValeurs
