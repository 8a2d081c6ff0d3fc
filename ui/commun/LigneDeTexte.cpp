#include "ui/commun/LigneDeTexte.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>

// QLineEdit keeps line breaks, though it shows none.
LigneDeTexte::LigneDeTexte(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, [this](QString texte) {
        static const QRegularExpression sauts(QStringLiteral("[\\r\\n\u2028\u2029]+"));
        if (texte.contains(sauts))
            setText(texte.remove(sauts));
    });
}

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
