#pragma once

#include <QString>
#include <QStringList>

// What `Fichier` does with files, done with what is too large to be held, and with folders. All throw ErreurStockage.
namespace Quillet::Disque {

// The plain files of a folder, and links to some, in order; none when there is no such folder. Unlike QDir's, a list
// that the disk cuts short is refused.
QStringList fichiers(const QString &dossier);
// Returns once the disk has taken what a file, or a folder, holds.
void synchroniser(const QString &chemin);
// Gives a file another name in its folder, in place of a file of that name. Returns once the disk knows.
void remplacer(const QString &chemin, const QString &nouveau);
// Gives a file another name, in a folder that may be on another disk, in place of a file there. Neither folder is asked
// to reach the disk.
void poser(const QString &chemin, const QString &nouveau);
// A folder with all that it holds, or a file; a link, not what it leads to. Not there: no error.
void supprimer(const QString &chemin);
// Throws for a folder that a disk is mounted on, which keeps its name; not for a link to one.
void exigerQuIlSeDeplace(const QString &dossier);

} // namespace Quillet::Disque
