#include "ui/reponse/ApercuMessage.h"

#include "composants/Dessin.h"
#include "composants/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace Quillet {

ApercuMessage::ApercuMessage(QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setAccessibleName(QStringLiteral("Message"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(18);
}

void ApercuMessage::montrer(const ReponseType &reponse, const QString &destinataire)
{
    reponse_.emplace(reponse);
    destinataire_ = destinataire;
    ecrire();
}

void ApercuMessage::ecrire()
{
    const int defilement = verticalScrollBar()->value();
    clear();
    QTextCursor plume(document());
    plume.beginEditBlock(); // one change to tell a screen reader of, not forty at each key
    const auto ligne = [&plume](const QString &texte, const QTextCharFormat &caractere, qreal dessous = 0) {
        QTextBlockFormat paragraphe;
        paragraphe.setBottomMargin(dessous);
        plume.setBlockFormat(paragraphe);
        plume.insertText(texte, caractere);
    };
    QTextCharFormat simple;
    simple.setFont(font());
    QTextCharFormat gras;
    gras.setFont(Theme::enGras(font()));
    QTextCharFormat discret = simple;
    discret.setForeground(Theme::secondaire(palette()));
    constexpr qreal avantLeCorps = 14;
    ligne(reponse_->sujet(), gras, destinataire_.isEmpty() ? avantLeCorps : 4);
    if (!destinataire_.isEmpty()) {
        plume.insertBlock();
        ligne(QStringLiteral("À : %1").arg(destinataire_), discret, avantLeCorps);
    }
    const QString total = reponse_->ligneTotal();
    for (const QString &texte : reponse_->corps().split(u'\n')) {
        plume.insertBlock();
        ligne(texte, texte == total ? gras : simple);
    }
    plume.endEditBlock();
    verticalScrollBar()->setValue(defilement);
}

// The colours of the palette and the font are written in the text.
void ApercuMessage::changeEvent(QEvent *evenement)
{
    QTextEdit::changeEvent(evenement);
    if ((evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::FontChange) && reponse_)
        ecrire();
}

// The card holds the scroll bar too.
bool ApercuMessage::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::Paint) {
        QPainter peintre(this);
        Dessin::carte(peintre, rect(), palette());
        return true;
    }
    return QTextEdit::event(evenement);
}

} // namespace Quillet
