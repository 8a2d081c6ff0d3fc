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

// The most that is read of a file of each kind: many times the largest sane one.
namespace Borne {
constexpr qint64 mebioctet = qint64{1024} * 1024;
constexpr qint64 preferences = mebioctet; // some ten lines
constexpr qint64 donnees = 8 * mebioctet; // ten thousand books
constexpr qint64 image = 64 * mebioctet;  // a scan for a printer
constexpr qint64 toute = image;
} // namespace Borne

// Throws ErreurStockage when the system does not tell.
bool existe(const QString &chemin);
// Names of the files that match, upper and lower case told apart, in order.
QStringList lister(const QDir &dossier, const QString &motif);
// None when the file is missing or cannot be read to its end.
std::optional<QByteArray> lire(const QString &chemin, qint64 borne);
// None when there is no file. Throws ErreurStockage when it is there and cannot be read to its end, is larger than
// `borne`, or is no plain file: a pipe or a device could be waited for without end.
std::optional<QByteArray> lireOuRefuser(const QString &chemin, qint64 borne);
// With any missing parents, and returns once the disk has taken them; throws ErreurStockage.
void creerDossier(const QString &chemin);
// False when not all could be written; the device's own error says why.
bool toutEcrire(QIODevice &fichier, QByteArrayView octets);
// Replaces or creates the file, whole or not at all, and returns once the disk has taken it, with its name. Throws
// ErreurStockage; what stood there is then as it was, unless it was longer than `Borne::toute` and the last
// wait for the disk failed.
void ecrire(const QString &chemin, const QByteArray &octets);
// Copies what a file holds beside it, never over another file: `nom`.illisible, -2… Gives the copy's name, which may be
// there already with the same bytes. Throws ErreurStockage.
QString mettreDeCote(const QString &chemin, const QByteArray &contenu);
// Whether a plain file holds more bytes; false when there is none.
bool excede(const QString &chemin, qint64 borne);
// Gives a file that is too large to be read, or copied, a second name beside it, as above. Throws ErreurStockage.
QString doubler(const QString &chemin);
// Gives a file or folder another name, which must be free, as `ecrire` replaces. Throws ErreurStockage; the former name
// then still stands.
void renommer(const QString &chemin, const QString &nouveau);
// Removes as `ecrire` replaces. A missing file is no error.
void effacer(const QString &chemin);

} // namespace Fichier

} // namespace Quillet
