#pragma once

#include "model/Livre.h"

#include <QStringList>

class QWidget;

// The return of every book to its shipped values.
namespace RetourAuxValeurs {

// What would be lost, a line a book, the first few of them; empty: nothing.
QStringList pertes(const QList<Livre> &actuels, const QList<Livre> &livres);
// Says what would be lost, and asks. When nothing would, says so and is true: the user's file goes all the same.
bool accepte(const QList<Livre> &actuels, const QList<Livre> &livres, QWidget *parent);

} // namespace RetourAuxValeurs
