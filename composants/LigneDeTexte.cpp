#include "composants/LigneDeTexte.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QValidator>

namespace Quillet {

namespace {

// QLineEdit keeps line breaks, though it shows none. A validator takes them out before any signal tells of them.
class SurUneLigne : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &saisie, int &) const override
    {
        static const QRegularExpression sauts(QStringLiteral("[\\r\\n\u2028\u2029]+"));
        saisie.remove(sauts);
        return Acceptable;
    }
};

} // namespace

LigneDeTexte::LigneDeTexte(QWidget *parent) : QLineEdit(parent)
{
    setValidator(new SurUneLigne(this));
    setCursorPosition(0); // done by the first focus, it would be all that a reader tells of the field
    connect(this, &QLineEdit::textChanged, this, &LigneDeTexte::inviter);
}

void LigneDeTexte::setInvite(const QString &invite)
{
    invite_ = invite;
    inviter();
}

// Behind a text it would not be seen, but it would be spoken.
void LigneDeTexte::inviter()
{
    if (invite_)
        setPlaceholderText(text().isEmpty() ? *invite_ : QString());
}

bool LigneDeTexte::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::ShortcutOverride) {
        const auto *touche = static_cast<QKeyEvent *>(evenement);
        if ((touche->matches(QKeySequence::Undo) && !isUndoAvailable())
            || (touche->matches(QKeySequence::Redo) && !isRedoAvailable() && !isUndoAvailable())
            || (touche->matches(QKeySequence::MoveToEndOfLine) && touche->key() != Qt::Key_End)) { // Ctrl+E, under X11
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

} // namespace Quillet
