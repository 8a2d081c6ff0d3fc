#pragma once

#include <QDir>
#include <QHash>
#include <QString>
#include <QStringList>

// The pictures of covers in a folder. A book's `couverture` and a file go together when they are the same but for
// what follows the last dot.
namespace Quillet::Couvertures {

QString nom(const QString &fichier);
// What may follow the dot, in lower case.
QStringList formats();
// Files by that name.
QHash<QString, QString> fichiers(const QDir &dossier);

} // namespace Quillet::Couvertures
