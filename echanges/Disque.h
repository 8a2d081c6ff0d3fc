#pragma once

#include <QString>

// What `Fichier` does with files, done with what is too large to be held, and with folders. All throw ErreurStockage.
namespace Quillet::Disque {

// Returns once the disk has taken what a file, or a folder, holds.
void synchroniser(const QString &chemin);
// Gives a file another name in its folder, in place of a file of that name. Returns once the disk knows.
void remplacer(const QString &chemin, const QString &nouveau);
// Gives a file another name, in a folder that may be on another disk, in place of a file there. Neither folder is asked
// to reach the disk.
void poser(const QString &chemin, const QString &nouveau);
// A folder with all that it holds, or a file; a link, not what it leads to. Not there: no error.
void supprimer(const QString &chemin);

} // namespace Quillet::Disque
