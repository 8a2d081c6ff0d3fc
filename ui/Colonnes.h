#pragma once

#include <QString>

class QSplitter;
class QWidget;

namespace Quillet {

class Preferences;

// Two panes of `composants/Partage` whose limit stays, from one start to the next, where the user has put it.
namespace Colonnes {

// `nom` is what the limit is remembered by.
QSplitter *entre(QWidget *gauche, QWidget *droite, QWidget *fixe, int largeur, const QString &nom,
                 const Preferences &preferences);

// Has what the user has moved in the window remembered. Throws ErreurStockage.
void retenir(const QWidget *fenetre, Preferences &preferences);

} // namespace Colonnes

} // namespace Quillet
