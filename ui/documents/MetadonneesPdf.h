#pragma once

#include <QByteArray>
#include <QString>

// What a PDF says of itself. Its metadata packet (XMP) is the only place where a QPdfWriter takes an author.
namespace Quillet::MetadonneesPdf {

QByteArray paquet(const QString &titre, const QString &auteur);

} // namespace Quillet::MetadonneesPdf
