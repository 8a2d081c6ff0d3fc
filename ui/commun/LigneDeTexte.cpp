#include "ui/commun/LigneDeTexte.h"

#include <QKeyEvent>

bool LigneDeTexte::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::ShortcutOverride) {
        const auto *touche = static_cast<QKeyEvent *>(evenement);
        if ((touche->matches(QKeySequence::Undo) && !isUndoAvailable())
            || (touche->matches(QKeySequence::Redo) && !isRedoAvailable() && !isUndoAvailable())) {
            evenement->ignore();
            return false;
        }
    }
    return QLineEdit::event(evenement);
}
