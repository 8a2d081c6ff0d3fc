#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Quillet {

// A table as spreadsheets save it: its rows, the first one too, as they come.
struct TableCsv
{
    QList<QStringList> rangees; // empty ones kept: a spreadsheet counts them
    QChar separateur;

    static constexpr qsizetype rangeesAuPlus = 10'000;
    static constexpr qsizetype colonnesAuPlus = 200;

    // Separator and encoding are found: semicolon, comma or tab; UTF-8, UTF-16 with its mark, else Windows-1252. Throws
    // Echec for what is no such table, or is too large.
    static TableCsv lue(const QByteArray &octets);
    // Semicolons, UTF-8 with its mark. A spreadsheet takes no cell for a formula, and `lue` gives all of them back.
    static QByteArray ecrite(const QList<QStringList> &rangees);
};

} // namespace Quillet
