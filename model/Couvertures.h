#pragma once

#include <QDir>
#include <QHash>
#include <QString>

// The pictures of covers in a folder. A book's `couverture` and a file go together when they are the same but for
// what follows the last dot.
namespace Couvertures {

QString nom(const QString &fichier);
// Files by that name.
QHash<QString, QString> fichiers(const QDir &dossier);

} // namespace Couvertures
