#include "composants/ImagesMarkdown.h"

#include "composants/Dessin.h"
#include "composants/Theme.h"

#include <QAbstractTextDocumentLayout>
#include <QImageReader>
#include <QPainter>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

namespace Quillet {

ImagesMarkdown::ImagesMarkdown(QDir dossier, QTextEdit *page) : QObject(page), dossier_(std::move(dossier)), page_(page)
{
    page->document()->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

QString ImagesMarkdown::chemin(const QTextFormat &format) const
{
    return dossier_.filePath(format.toImageFormat().name());
}

// Only its head is read.
QSizeF ImagesMarkdown::intrinsicSize(QTextDocument *texte, int, const QTextFormat &format)
{
    const QString image = chemin(format);
    if (!tailles_.contains(image))
        tailles_.insert(image, QImageReader(image).size());
    const QSizeF taille = tailles_.value(image);
    if (taille.isEmpty())
        return {};
    const qreal largeur = std::min(taille.width(), texte->textWidth() - 2 * texte->documentMargin());
    return taille * largeur / taille.width();
}

void ImagesMarkdown::drawObject(QPainter *peintre, const QRectF &place, QTextDocument *, int, const QTextFormat &format)
{
    const QRectF cadre = Dessin::surLesPixels(*peintre, place);
    const QSize pixels = (cadre.size() * peintre->device()->devicePixelRatioF()).toSize();
    QPixmap &dessin = dessins_[chemin(format)];
    if (dessin.size() != pixels) {
        const QImage image(chemin(format));
        dessin = QPixmap::fromImage(image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    peintre->drawPixmap(cadre, dessin, dessin.rect());
    peintre->save();
    Dessin::encadre(*peintre, cadre, 0, Qt::transparent, Theme::filet(page_->palette()));
    peintre->restore();
}

} // namespace Quillet
