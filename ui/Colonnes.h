#pragma once

#include <QString>

class QSplitter;
class QWidget;

namespace Quillet {

class Preferences;

// Two panes of `composants/Partage` whose limit stays, from one start to the next, where the user has put it.
namespace Colonnes {

// `largeur` is that of `fixe`, px, as `Theme::aLaTaille` takes them; another one is remembered by `nom`, as soon as it
// rests.
QSplitter *entre(QWidget *gauche, QWidget *droite, QWidget *fixe, int largeur, const QString &nom,
                 const Preferences &preferences);
} // namespace Colonnes

} // namespace Quillet
