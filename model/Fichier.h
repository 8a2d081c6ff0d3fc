#pragma once

#include "model/Echec.h"

#include <QByteArray>
#include <QString>

#include <optional>

// A user's file could not be written or deleted; the text names it and says why, in French.
class ErreurStockage : public Echec
{
public:
    using Echec::Echec;
    ErreurStockage(const QString &chemin, const QString &raison);
};

namespace Fichier {

// Throws ErreurStockage when the system does not tell.
bool existe(const QString &chemin);
// None when the file is missing or cannot be read to its end.
std::optional<QByteArray> lire(const QString &chemin);
// With any missing parents; throws ErreurStockage.
void creerDossier(const QString &chemin);
// Replaces or creates the file, whole or not at all, and returns once the disk has taken it. Throws ErreurStockage;
// what stood there is then as it was.
void ecrire(const QString &chemin, const QByteArray &octets);

} // namespace Fichier
