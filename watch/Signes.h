#pragma once

#include <QStringView>

#include <limits>

// The small parts of the patterns, each taking exactly what ICU's engine lets it take.
namespace Quillet::Signes {

// A literal, in ASCII and lower case, whatever the case of the text: where it ends when it stands here, else -1.
qsizetype finDuLitteral(QStringView texte, qsizetype place, QStringView litteral);
// "\b" where a letter comes just before.
bool finDeMot(QStringView texte, qsizetype place);
// "\d": a digit of any script.
bool estChiffre(QStringView texte, qsizetype place);
// "\d*", or "\d{0,auPlus}": past the digits that stand here.
qsizetype finDesChiffres(QStringView texte, qsizetype place, int auPlus = std::numeric_limits<int>::max());
// "\s*": past the blanks that stand here.
qsizetype finDesBlancs(QStringView texte, qsizetype place);

} // namespace Quillet::Signes
