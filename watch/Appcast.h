#pragma once

#include "watch/NumeroDeVersion.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

// The feed of updates, in Sparkle's format, with dates and digests of our own.
namespace Quillet::Appcast {

// Of a package, in bytes.
inline constexpr qint64 longueurMaximale = qint64{64} << 20;

// One version that the feed announces; what it says of the package is not to be trusted before `aProposer`.
struct Parution
{
    NumeroDeVersion numero;
    QString nom;   // as shown: "1.2"
    QString notes; // plain text of several lines; may be empty
    QUrl paquet;
    qint64 longueur = 0;  // bytes
    QByteArray empreinte; // SHA-256, 32 bytes; empty when none is given
};

struct Flux
{
    QDateTime etabli; // in UTC, as the next
    QDateTime expire; // from then on it may hide what has come since
    QList<Parution> parutions;
};

// Every version for this system ("debian13") whose number is understood, in the feed's order; those of a channel are
// for whoever joined it. Of its packages, the one that names this system, else one that is for all. Throws
// ErreurMiseAJour, also when there are some and no number is understood.
Flux lire(const QString &flux, const QString &systeme);
// The latest, none when it is not after the installed one. Throws ErreurMiseAJour when its package must not be
// fetched: not at an https address, without a digest, or of no sensible length.
std::optional<Parution> aProposer(const QList<Parution> &parutions, const NumeroDeVersion &installee);

// What is new, as plain text: HTML loses its tags, its paragraphs and lists become lines.
QString notes(const QString &description);

} // namespace Quillet::Appcast
