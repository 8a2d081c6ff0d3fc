#pragma once

#include <QString>
#include <QStringList>

// What is said of the folder of the sellers' own data.
namespace Quillet::TextesDonnees {

// Of the data files that somebody else has changed; empty for none.
QString changeesAilleurs(const QStringList &fichiers);

} // namespace Quillet::TextesDonnees
