#pragma once

#include <QByteArray>
#include <QFont>
#include <QString>

// The letters that a PDF gives to those who search or copy its text. Qt has a glyph stand for the first character that
// shares it: where a typeface draws them alike, an apostrophe comes out as the letter U+02BC, a Greek iota as a Latin
// one.
namespace Quillet::LettresPdf {

// The same document, whose glyphs stand for the characters of `ecrit`: all that it shows, drawn in `police`; the same
// bytes each time, but for the dates.
// Throws Echec when the document cannot be read.
QByteArray retablir(const QByteArray &document, const QString &ecrit, const QFont &police);

} // namespace Quillet::LettresPdf
