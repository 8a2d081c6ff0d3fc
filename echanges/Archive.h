#pragma once

#include "echanges/Manifeste.h"
#include "echanges/PiecesDArchive.h"
#include "model/Echec.h"

#include <QString>
#include <QStringList>

namespace Quillet {

struct Bagage;

// The one form in which data leave, come back and are kept: a zip. Nothing of one that is read is believed before it is
// seen: neither its lengths nor its names.
namespace Archive {

// Replaces or creates the file, whole or not at all, and returns once the disk has taken it. Pictures go from disk to
// disk. Throws Echec.
void ecrire(const QString &chemin, const Bagage &bagage);

// What an archive says of itself; throws Echec when it is none of ours, or of a version to come.
Manifeste manifeste(const QString &chemin);

struct Contenu
{
    Manifeste manifeste;
    QStringList noms;     // of the files unpacked
    QStringList inconnus; // what was left in the archive
};

// Unpacks all that Quillet knows, `total` bytes at most, into a folder that must be there, on the disk when this
// returns. Throws Echec, and leaves there what it had unpacked by then.
Contenu deballer(const QString &chemin, const QString &dossier, qint64 total = PiecesDArchive::total);
// The same but for the pictures, and whether the disk has taken it or not: to be looked at.
Contenu entrouvrir(const QString &chemin, const QString &dossier);

} // namespace Archive

} // namespace Quillet
