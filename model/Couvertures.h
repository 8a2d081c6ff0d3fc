#pragma once

#include "model/Livre.h"

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
// What the files of these books' covers hold, by file; one that is not there is none. Throws ErreurStockage.
QHash<QString, QByteArray> contenus(const QDir &dossier, const QList<Livre> &livres);

} // namespace Quillet::Couvertures
