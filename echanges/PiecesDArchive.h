#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

// The names of what an archive of data holds, the same in the archive, in the folder where one is unpacked and, but for
// the first two, in the user's folder.
namespace Quillet::PiecesDArchive {

inline const QString manifeste = QStringLiteral("quillet.json");
inline const QString series = QStringLiteral("factures.json");
// The sellers' own folder, and its pictures.
inline const QString propres = QStringLiteral("donnees/");
inline const QString couvertures = QStringLiteral("donnees/couvertures/");

// How much an archive may hold in all, in bytes and in entries.
constexpr qint64 total = qint64{1} << 30;
constexpr qint64 nombre = 20'000;

// The most bytes that are read of it; none of a name that is no part of an archive.
std::optional<qint64> borne(const QString &nom);
bool estUnTarif(const QString &fichier);
// A picture whose name any system can hold, by itself and not behind a folder.
bool estUneCouverture(const QString &fichier);
// Whether a name could lead anywhere but below the folder in which it is unpacked.
bool sEchappe(const QString &nom);

} // namespace Quillet::PiecesDArchive
