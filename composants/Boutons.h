#pragma once

#include <QString>

class QPushButton;

namespace Quillet::Boutons {

// A button of a sheet, which never becomes its default one by having the focus.
QPushButton *deFeuille(const QString &texte, const QString &symbole = {});

} // namespace Quillet::Boutons
