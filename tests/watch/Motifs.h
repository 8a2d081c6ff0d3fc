#pragma once

#include "watch/TexteHTML.h"

#include <random>

// What TexteHTML and Nombres promise, said with the patterns themselves and run by ICU's engine: slow, and true.
namespace Quillet::Motifs {

QString texte(const QString &html);
QList<TexteHTML::Tableau> tableaux(const QString &html);
std::optional<qint64> centiemes(const QString &texte);
std::optional<qint64> grammes(const QString &texte);

// A text to read in both ways: from one piece to the next, and now and then to any other, so that openings meet their
// closings, but not always.
QString fragment(std::mt19937 &hasard, const QStringList &morceaux);

} // namespace Quillet::Motifs
