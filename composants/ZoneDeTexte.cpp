#include "composants/ZoneDeTexte.h"

#include "composants/TailleDuTexte.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyleOption>

namespace Quillet {

namespace {

constexpr int marge = 5;              // above and below the text
constexpr int gauche = 7;             // as in a field of one line
constexpr int plusLongColle = 10'000; // letters: what is longer was copied by mistake, and takes minutes to lay out

} // namespace

ZoneDeTexte::ZoneDeTexte(int lignes, QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setViewportMargins(gauche, marge, 1, marge);
    document()->setDocumentMargin(1);
    TailleDuTexte::suivre(this,
                          [this, lignes] { setFixedHeight(lignes * fontMetrics().lineSpacing() + 2 * (marge + 1)); });
}

void ZoneDeTexte::nettoyerLeColle(std::function<QString(const QString &)> nettoyage)
{
    nettoyage_ = std::move(nettoyage);
}

// Qt 6.4 does not look whether there is anything to insert: an empty clipboard would end the program.
void ZoneDeTexte::insertFromMimeData(const QMimeData *contenu)
{
    if (!canInsertFromMimeData(contenu))
        return;
    QMimeData colle;
    colle.setText(contenu->text().left(plusLongColle));
    QTextCursor debut = textCursor();
    debut.setPosition(debut.selectionStart());
    if (nettoyage_ && (debut.atBlockStart() || colle.text().contains(u'\n')))
        colle.setText(nettoyage_(colle.text()));
    QPlainTextEdit::insertFromMimeData(&colle);
}

// The frame holds the scroll bar too, and changes as a whole with the focus. Undo and redo are its screen's, as in a
// LigneDeTexte, while the field has no typing of its own.
bool ZoneDeTexte::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::ShortcutOverride) {
        const auto *touche = static_cast<QKeyEvent *>(evenement);
        const bool aDefaire = document()->isUndoAvailable();
        if ((touche->matches(QKeySequence::Undo) && !aDefaire)
            || (touche->matches(QKeySequence::Redo) && !aDefaire && !document()->isRedoAvailable())) {
            evenement->ignore();
            return false;
        }
    }
    if (evenement->type() == QEvent::FocusIn || evenement->type() == QEvent::FocusOut)
        update();
    if (evenement->type() != QEvent::Paint)
        return QPlainTextEdit::event(evenement);
    QStyleOptionFrame cadre;
    cadre.initFrom(this);
    QPainter peintre(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &cadre, &peintre, this);
    return true;
}

} // namespace Quillet
