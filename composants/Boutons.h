#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace Quillet::Boutons {

// A button of a sheet, which never becomes its default one by having the focus.
QPushButton *deFeuille(const QString &texte, const QString &symbole = {});

// Stands out as what its sheet is for; Return does not press it from elsewhere, as it does a default button.
void rendrePrincipal(QPushButton *bouton);
// Null: it is not.
bool estPrincipal(const QWidget *bouton);

} // namespace Quillet::Boutons
