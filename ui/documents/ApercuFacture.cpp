#include "ui/documents/ApercuFacture.h"

#include "composants/Dessin.h"
#include "composants/Feuille.h"
#include "composants/PageAuClavier.h"
#include "composants/Pile.h"
#include "composants/Place.h"
#include "composants/Theme.h"
#include "ui/documents/PageFacture.h"

#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Quillet {

namespace {

constexpr double reduction = 0.25;
constexpr int marge = 4; // for the focus ring

PageFacture::Couleurs couleurs(const QPalette &palette)
{
    return {.encre = palette.color(QPalette::WindowText),
            .gris = Theme::secondaire(palette),
            .filet = Theme::filet(palette),
            .accent = Theme::accentTexte(palette)};
}

void peindreLaPage(QPainter &peintre, const Facture &facture, const QRectF &cadre, const QPalette &palette)
{
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(Theme::filet(palette), 1));
    peintre.setBrush(Theme::carte(palette));
    peintre.drawRect(cadre.adjusted(0.5, 0.5, -0.5, -0.5));
    peintre.translate(cadre.topLeft());
    const double echelle = cadre.width() / PageFacture::taille.width();
    peintre.scale(echelle, echelle);
    PageFacture::peindre(peintre, facture, couleurs(palette));
}

// The page at its own size.
class PageEntiere : public QWidget
{
public:
    explicit PageEntiere(Facture facture) : facture_(std::move(facture)) { setFixedSize(PageFacture::taille); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peindreLaPage(peintre, facture_, rect(), palette());
    }

private:
    Facture facture_;
};

} // namespace

ApercuFacture::ApercuFacture(QWidget *parent) : QAbstractButton(parent)
{
    setFixedSize((QSizeF(PageFacture::taille) * reduction).toSize() + 2 * QSize(marge, marge));
    setCursor(Qt::PointingHandCursor);
    setToolTip(QStringLiteral("Agrandir la facture"));
    setAccessibleName(toolTip());
    connect(this, &QAbstractButton::clicked, this, &ApercuFacture::agrandir);
}

void ApercuFacture::montrer(const Facture &facture)
{
    facture_ = facture;
    update();
}

void ApercuFacture::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    const QRectF cadre = QRectF(rect()).adjusted(marge, marge, -marge, -marge);
    if (Dessin::focusVisible(this)) {
        peintre.setRenderHint(QPainter::Antialiasing);
        Dessin::anneauDeFocus(peintre, rect(), marge, Theme::accentTexte(palette()));
    }
    peindreLaPage(peintre, facture_, cadre, palette());
}

void ApercuFacture::agrandir()
{
    auto *vue = new Feuille(facture_.titre(), window());
    auto *page = new QWidget;
    auto *centre = new QVBoxLayout(page);
    centre->addWidget(new PageEntiere(facture_), 0, Qt::AlignCenter);
    auto *defilement = new PageAuClavier;
    defilement->setAccessibleName(vue->windowTitle());
    defilement->setWidget(page);
    Pile::colonne(vue, {}, {defilement});
    const QSize voulue = page->sizeHint() + QSize(defilement->verticalScrollBar()->sizeHint().width(), 0);
    vue->resize(voulue.boundedTo(Place::surLEcran(vue)));
    vue->ouvrir();
}

} // namespace Quillet
