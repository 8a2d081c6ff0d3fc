#pragma once

class QAccessibleInterface;
class QObject;
class QString;

namespace Quillet::LectureDeListe {

// What a screen reader is given of a list, a table or a tree of Qt's, in its dialogs too: what Qt gives, but that a
// cell that is not there may be asked for, by which Qt 6.4 ends the program. Null for anything else.
QAccessibleInterface *interfaceDe(const QString &classe, QObject *objet);

} // namespace Quillet::LectureDeListe
