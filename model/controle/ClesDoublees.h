#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// Keys that one object of a JSON text has twice: reading takes the last without a word.
namespace Quillet::ClesDoublees {

struct Cle
{
    qsizetype ligne = 0; // from 1
    QString nom;
};

// Of a text known to be valid.
QList<Cle> dans(const QByteArray &json);

} // namespace Quillet::ClesDoublees
