#pragma once

#include <QDir>
#include <QHash>
#include <QPixmap>
#include <QTextObjectInterface>

class QTextEdit;

namespace Quillet {

// Draws the pictures of a text as wide as they are, or as the text where they are wider, on the display's own pixels.
class ImagesMarkdown : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // Of what `page` shows, which owns it; their names start from `dossier`.
    ImagesMarkdown(QDir dossier, QTextEdit *page);
    QSizeF intrinsicSize(QTextDocument *texte, int position, const QTextFormat &format) override;
    void drawObject(QPainter *peintre, const QRectF &place, QTextDocument *texte, int position,
                    const QTextFormat &format) override;

private:
    [[nodiscard]] QString chemin(const QTextFormat &format) const;

    QDir dossier_;
    QTextEdit *page_;
    // By path.
    QHash<QString, QSize> tailles_;
    QHash<QString, QPixmap> dessins_; // at the size last drawn
};

} // namespace Quillet
