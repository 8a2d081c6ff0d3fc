#pragma once

class QAccessibleInterface;
class QObject;
class QString;

namespace Quillet::LectureDeTableau {

// What a screen reader is given of a Tableau and of each of its cells; null for anything else.
QAccessibleInterface *interfaceDe(const QString &classe, QObject *objet);

} // namespace Quillet::LectureDeTableau
