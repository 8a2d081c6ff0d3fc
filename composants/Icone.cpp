#include "composants/Icone.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace Quillet {

namespace {

// Read once a size, in the file's own colour.
QPixmap forme(const QString &symbole, const QSize &pixels)
{
    const QString cle = QStringLiteral("%1/%2").arg(symbole, QString::number(pixels.width()));
    QPixmap image;
    if (QPixmapCache::find(cle, &image))
        return image;
    image = QPixmap(pixels);
    image.fill(Qt::transparent);
    QSvgRenderer svg(QStringLiteral(":/icones/%1.svg").arg(symbole));
    QPainter peintre(&image);
    svg.render(&peintre);
    peintre.end();
    QPixmapCache::insert(cle, image);
    return image;
}

// Not kept: a motion goes through hundreds of colours.
QPixmap teintee(QPixmap forme, const QColor &couleur)
{
    QPainter peintre(&forme);
    peintre.setCompositionMode(QPainter::CompositionMode_SourceIn);
    peintre.fillRect(forme.rect(), couleur);
    return forme;
}

class Moteur : public QIconEngine
{
public:
    explicit Moteur(QString symbole) : symbole_(std::move(symbole)) {}

    void paint(QPainter *peintre, const QRect &cadre, QIcon::Mode mode, QIcon::State) override
    {
        const auto groupe = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        Icone::peindre(*peintre, symbole_, cadre, QApplication::palette().color(groupe, role));
    }

    QPixmap pixmap(const QSize &taille, QIcon::Mode mode, QIcon::State etat) override
    {
        QPixmap image(taille);
        image.fill(Qt::transparent);
        QPainter peintre(&image);
        paint(&peintre, image.rect(), mode, etat);
        return image;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new Moteur(*this); }

private:
    QString symbole_;
};

} // namespace

void Icone::peindre(QPainter &peintre, const QString &symbole, const QRectF &cadre, const QColor &couleur)
{
    const qreal densite = peintre.device()->devicePixelRatioF();
    QPixmap image = teintee(forme(symbole, (cadre.size() * densite).toSize()), couleur);
    image.setDevicePixelRatio(densite);
    peintre.drawPixmap(cadre.topLeft(), image);
}

QIcon Icone::icone(const QString &symbole)
{
    return QIcon(new Moteur(symbole));
}

} // namespace Quillet
