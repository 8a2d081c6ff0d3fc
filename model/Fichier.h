#pragma once

#include "model/Echec.h"

#include <QByteArray>
#include <QString>

// A user's file could not be written or deleted; the text names it and says why, in French.
class ErreurStockage : public Echec
{
public:
    using Echec::Echec;
    ErreurStockage(const QString &chemin, const QString &raison);
};

namespace Fichier {

// Replaces or creates the file, whole or not at all. Throws ErreurStockage; what stood there is then as it was.
void ecrire(const QString &chemin, const QByteArray &octets);

} // namespace Fichier
