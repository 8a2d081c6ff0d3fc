#include "ui/commun/ZoneDeTexte.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int marge = 5; // around the text

} // namespace

ZoneDeTexte::ZoneDeTexte(int lignes, QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(marge);
    setFixedHeight(lignes * fontMetrics().lineSpacing() + 2 * marge);
}

void ZoneDeTexte::paintEvent(QPaintEvent *evenement)
{
    QStyleOptionFrame cadre;
    cadre.initFrom(this);
    cadre.rect = viewport()->rect();
    QPainter peintre(viewport());
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &cadre, &peintre, this);
    QPlainTextEdit::paintEvent(evenement);
}

// The whole frame changes with the focus, not only the cursor.
void ZoneDeTexte::focusInEvent(QFocusEvent *evenement)
{
    QPlainTextEdit::focusInEvent(evenement);
    viewport()->update();
}

void ZoneDeTexte::focusOutEvent(QFocusEvent *evenement)
{
    QPlainTextEdit::focusOutEvent(evenement);
    viewport()->update();
}
