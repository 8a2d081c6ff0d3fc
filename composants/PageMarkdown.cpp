#include "composants/PageMarkdown.h"

#include "composants/Dessin.h"
#include "composants/HabillageMarkdown.h"
#include "composants/ImagesMarkdown.h"
#include "composants/Lien.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int colonne = 560; // about 75 characters
constexpr int largeurMinimale = 400;
constexpr int marge = 28;        // at least, on either side
constexpr int margeDuTexte = 14; // of which the text has its own, as above its first line
constexpr int lisiere = 6;       // above and below what is seen

} // namespace

PageMarkdown::PageMarkdown(QString texte, const QDir &dossier, QWidget *parent)
    : QTextBrowser(parent), texte_(std::move(texte))
{
    new ImagesMarkdown(dossier, this);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(40);
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &PageMarkdown::suivre);
    TailleDuTexte::suivre(this, [this] {
        setMinimumWidth(Theme::aLaTaille(largeurMinimale));
        cadrer();
    });
    ecrire();
}

void PageMarkdown::ecrire()
{
    const int defilement = verticalScrollBar()->value();
    QFont police = font();
    police.setPointSizeF(police.pointSizeF() * 1.08); // to be read at length
    document()->setDefaultFont(police);
    document()->setDocumentMargin(margeDuTexte);
    document()->setIndentWidth(Theme::aLaTaille(26));
    document()->setMarkdown(texte_); // as GitHub reads it
    HabillageMarkdown::habiller(*document(), palette());
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(defilement);
}

int PageMarkdown::largeurOfferte() const
{
    return width() - verticalScrollBar()->sizeHint().width();
}

// In the middle of its place.
void PageMarkdown::cadrer()
{
    const int dehors = std::max(2 * marge, largeurOfferte() - Theme::aLaTaille(colonne)) - 2 * margeDuTexte;
    setViewportMargins(dehors / 2, lisiere, dehors - dehors / 2, lisiere);
}

void PageMarkdown::suivre(const QUrl &lien)
{
    if (!lien.isRelative()) {
        Lien::ouvrir(lien, this);
        return;
    }
    const QTextBlock titre = HabillageMarkdown::titre(*document(), lien.fragment(QUrl::FullyDecoded));
    setTextCursor(QTextCursor(titre)); // Tab goes on from there
    verticalScrollBar()->setValue(qRound(document()->documentLayout()->blockBoundingRect(titre).top()));
}

bool PageMarkdown::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::FocusIn || evenement->type() == QEvent::FocusOut)
        update();
    if (evenement->type() != QEvent::Paint)
        return QTextBrowser::event(evenement);
    if (Dessin::focusVisible(this)) {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        const QRectF cadre(0, 0, largeurOfferte(), height());
        Dessin::anneauDeFocus(peintre, cadre.adjusted(3, 3, -3, -3), Theme::rayonControle,
                              Theme::accentTexte(palette()));
    }
    return true;
}

// The colours of the palette and the font are written in the text.
void PageMarkdown::changeEvent(QEvent *evenement)
{
    QTextBrowser::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::FontChange)
        ecrire();
}

void PageMarkdown::resizeEvent(QResizeEvent *evenement)
{
    cadrer();
    QTextBrowser::resizeEvent(evenement);
}

} // namespace Quillet
