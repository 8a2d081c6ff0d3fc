#include "ui/commun/LigneDeTexte.h"

#include <QFocusEvent>
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

bool LigneDeTexte::reviendra(const QFocusEvent &perte)
{
    return perte.reason() == Qt::ActiveWindowFocusReason || perte.reason() == Qt::PopupFocusReason;
}
