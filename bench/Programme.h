#pragma once

#include <QList>
#include <QStringList>

// The programs that stand beside this one.
namespace Quillet::Programme {

// Runs one to its end; what it prints, numbers between blanks. This program ends when that one fails.
QList<double> valeurs(const QString &nom, const QStringList &arguments);

} // namespace Quillet::Programme
