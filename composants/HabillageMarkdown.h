#pragma once

class QPalette;
class QString;
class QTextBlock;
class QTextDocument;

// How a Markdown text looks once Qt has read it.
namespace Quillet::HabillageMarkdown {

// Gives it the program's faces and colours, and its pictures their captions. Links stay where they lead somewhere: to a
// heading of the text, to an https page.
void habiller(QTextDocument &texte, const QPalette &palette);
// The heading that "#ancre" names, as it does on the web; not valid when there is none.
QTextBlock titre(const QTextDocument &texte, const QString &ancre);

} // namespace Quillet::HabillageMarkdown
