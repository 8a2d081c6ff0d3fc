#include "ui/documents/ApercuFacture.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "ui/documents/PageALEcran.h"
#include "ui/documents/PageFacture.h"

#include <QPainter>

namespace Quillet {

namespace {

constexpr double reduction = 0.25;
constexpr int marge = 4; // for the focus ring
constexpr int espace = 6;

const QSize page = (QSizeF(PageFacture::taille) * reduction).toSize();

} // namespace

ApercuFacture::ApercuFacture(QWidget *parent) : QAbstractButton(parent)
{
    setText(QStringLiteral("Agrandir"));
    setCursor(Qt::PointingHandCursor);
    setToolTip(QStringLiteral("Agrandir la facture"));
    setAccessibleName(toolTip());
    setFont(Theme::encadre());
    TailleDuTexte::suivre(
        this, [this] { setFixedSize(page + QSize(2 * marge, 2 * marge + espace + fontMetrics().height())); });
}

void ApercuFacture::montrer(const Facture &facture)
{
    facture_ = facture;
    update();
}

void ApercuFacture::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QColor couleur = Theme::accentTexte(palette());
    if (Dessin::focusVisible(this))
        Dessin::anneauDeFocus(peintre, rect(), marge, couleur);
    peindreLaPage(peintre, facture_, QRectF(QPointF(marge, marge), page), palette());

    const int cote = fontMetrics().height();
    const int largeur = cote + espace + fontMetrics().horizontalAdvance(text());
    const QRect ligne((width() - largeur) / 2, height() - marge - cote, largeur, cote);
    Icone::peindre(peintre, QStringLiteral("magnifyingglass"), QRect(ligne.topLeft(), QSize(cote, cote)), couleur);
    peintre.setPen(couleur);
    peintre.drawText(ligne, Qt::AlignRight | Qt::AlignVCenter, text());
}

} // namespace Quillet
