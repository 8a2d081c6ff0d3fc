#pragma once

#include "echanges/CouverturePrete.h"
#include "model/Livre.h"

#include <QDateTime>
#include <QDir>

// The pictures that Quillet puts into a folder of covers, each under a name of its own: none is ever written over, so
// that whatever names one finds it again.
namespace Quillet::Couvertures {

// The file's name, for the book's `couverture`, in an empty folder: its title and eight figures of its bytes.
QString nomDuDepot(const QString &titre, const CouverturePrete &couverture);
// Writes it under that name, or one with more figures when another picture has it, and gives the name. The same picture
// is written once. Returns once the disk has taken it;
// throws ErreurStockage.
QString deposer(const QDir &dossier, const QString &titre, const CouverturePrete &couverture);

// Removes those deposited that no book names. Not the ones of these last thirty days: in a folder that two computers
// share, the book may come after its picture. What cannot be removed stays for another time.
void elaguer(const QDir &dossier, const QList<Livre> &livres, const QDateTime &maintenant);

} // namespace Quillet::Couvertures
