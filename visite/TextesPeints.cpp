#include "visite/TextesPeints.h"

#include <QApplication>
#include <QEvent>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <cmath>

namespace Quillet {

namespace {

constexpr double jeu = 4; // px, between two figures of one width

// Draws nothing, and notes each text with the widget that is painting.
class Releveur : public QObject, public QPaintEngine, public QPaintDevice
{
public:
    explicit Releveur(const QWidget &page) : QPaintEngine(QPaintEngine::AllFeatures), page_(page)
    {
        qApp->installEventFilter(this);
    }

    [[nodiscard]] QList<TextePeint> releve() const { return textes_; }

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::Paint && objet->isWidgetType())
            peint_ = static_cast<const QWidget *>(objet);
        return false;
    }

    [[nodiscard]] QPaintEngine *paintEngine() const override { return moteur_; }
    [[nodiscard]] Type type() const override { return User; }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}

    void drawTextItem(const QPointF &depart, const QTextItem &item) override
    {
        const QTransform vers = painter()->deviceTransform();
        // Of the outlines: metrics round up to whole pixels, by more than one in Qt 6.8.
        QPainterPath contour;
        contour.addText(depart, item.font(), item.text());
        const QRectF encre = contour.boundingRect();
        const QRectF decoupe =
            painter()->hasClipping() ? vers.mapRect(painter()->clipBoundingRect()) : QRectF(page_.rect());
        QColor couleur = painter()->pen().color();
        couleur.setAlphaF(couleur.alphaF() * static_cast<float>(painter()->opacity()));
        noter({peint_, item.text(), encre.isEmpty() ? QRectF() : vers.mapRect(encre), decoupe, couleur,
               vers.map(depart), item.width() * vers.m11()});
    }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric mesure) const override
    {
        switch (mesure) {
        case PdmWidth:
            return page_.width();
        case PdmHeight:
            return page_.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return page_.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return page_.logicalDpiY();
        case PdmDevicePixelRatio:
        case PdmNumColors:
            return 1;
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(mesure);
        }
    }

private:
    // What follows on the same line belongs to the same run, on either side: figures are drawn one by one.
    void noter(const TextePeint &texte)
    {
        if (!textes_.isEmpty()) {
            TextePeint &avant = textes_.last();
            const auto touche = [](double a, double b) { return std::abs(a - b) < jeu; };
            const bool memeLigne = avant.widget == texte.widget && avant.couleur == texte.couleur
                                   && touche(avant.depart.y(), texte.depart.y());
            const bool suit = touche(avant.depart.x() + avant.largeur, texte.depart.x());
            const bool precede = touche(texte.depart.x() + texte.largeur, avant.depart.x());
            if (memeLigne && (suit || precede)) {
                avant.texte = suit ? avant.texte + texte.texte : texte.texte + avant.texte;
                avant.encre |= texte.encre;
                avant.depart = suit ? avant.depart : texte.depart;
                avant.largeur += texte.largeur;
                return;
            }
        }
        textes_.append(texte);
    }

    const QWidget &page_;
    QPaintEngine *const moteur_ = this; // asked for by a const function, and painted with
    const QWidget *peint_ = nullptr;
    QList<TextePeint> textes_;
};

} // namespace

QList<TextePeint> textesPeints(QWidget *page)
{
    Releveur releveur(*page);
    page->render(&releveur);
    QList<TextePeint> textes = releveur.releve();
    textes.removeIf([](const TextePeint &texte) { return texte.encre.isEmpty() || texte.decoupe.isEmpty(); });
    return textes;
}

} // namespace Quillet
