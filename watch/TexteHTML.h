#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <limits>

// Pages read as a few regular expressions of ICU's dialect, without case, would read
// them: `tests/watch/tst_texte_html` holds these against their patterns. Time grows with the length of the text
// alone, however the page is built, so that none can freeze the window.
namespace Quillet::TexteHTML {

using Rangee = QStringList; // the cells' texts
using Tableau = QList<Rangee>;

// One line of plain text, without tags, scripts and style sheets.
QString texte(QStringView html);
// Every table, row and cell, empty ones too. A table inside another ends it at its own end tag; spans are ignored.
QList<Tableau> tableaux(QStringView html);
// For each match, the whole of it, then its groups; a group that took no part is empty. A pattern that does not
// compile matches nothing. Time is the pattern's: "\d+" and "\s+" take room for every character on ICU's limited
// stack, "[\d]+" and "[\s]+" take none.
QList<QStringList> groupes(const QString &motif, const QString &texte,
                           qsizetype auPlus = std::numeric_limits<qsizetype>::max());

} // namespace Quillet::TexteHTML
