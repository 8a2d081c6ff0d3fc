#pragma once

#include <QList>
#include <QStringList>

namespace Quillet {

// The programs that stand beside this one.
namespace Programme {

// Runs one to its end; what it prints, numbers between blanks. This program ends when that one fails.
QList<double> valeurs(const QString &nom, const QStringList &arguments);

} // namespace Programme

} // namespace Quillet
