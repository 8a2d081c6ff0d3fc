#pragma once

#include <QString>

class QProcess;

// The program itself once more, to decode what somebody else has made: with little memory, little time and no rights to
// gain.
namespace Quillet::ProcessusBride {

void preparer(QProcess &processus, int secondesDeCalcul);
void tuer(QProcess &processus);
// The program is not there any more, or is another one by now.
QString neSeLancePlus(const QString &programme);

} // namespace Quillet::ProcessusBride
