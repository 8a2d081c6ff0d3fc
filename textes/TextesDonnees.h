#pragma once

#include <QString>
#include <QStringList>

// What is said of the folder of the sellers' own data.
namespace Quillet::TextesDonnees {

// Of the data files that somebody else has changed; empty for none.
QString changeesAilleurs(const QStringList &fichiers);

// Once they were read again: what had been typed, and has no place any more.
QString livreRetireAilleurs();
QString saisieNonReprise(const QStringList &textes = {});
// To whoever was about to begin: there are some by now.
QString arriveesEntreTemps(const QString &dossier);

} // namespace Quillet::TextesDonnees
