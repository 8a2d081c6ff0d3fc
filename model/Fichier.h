#pragma once

#include "model/Echec.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

class QDir;
class QIODevice;

namespace Quillet {

// A file could not be read, written or deleted; the text names it and says why, in French.
class ErreurStockage : public Echec
{
public:
    ErreurStockage(const QString &chemin, QString raison);
    [[nodiscard]] const QString &raison() const { return raison_; }

private:
    QString raison_;
};

namespace Fichier {

// Throws ErreurStockage when the system does not tell.
bool existe(const QString &chemin);
// Names of the files that match, upper and lower case told apart, in order.
QStringList lister(const QDir &dossier, const QString &motif);
// None when the file is missing or cannot be read to its end.
std::optional<QByteArray> lire(const QString &chemin);
// None when there is no file. Throws ErreurStockage when it is there and cannot be read to its end.
std::optional<QByteArray> lireOuRefuser(const QString &chemin);
// With any missing parents; throws ErreurStockage.
void creerDossier(const QString &chemin);
// False when not all could be written; the device's own error says why.
bool toutEcrire(QIODevice &fichier, QByteArrayView octets);
// Replaces or creates the file, whole or not at all, and returns once the disk has taken it. Throws ErreurStockage;
// what stood there is then as it was.
void ecrire(const QString &chemin, const QByteArray &octets);

} // namespace Fichier

} // namespace Quillet
