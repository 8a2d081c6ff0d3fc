#include "ui/documents/PageALEcran.h"

#include "composants/Theme.h"
#include "ui/documents/PageFacture.h"

#include <QPainter>

namespace Quillet {

void peindreLaPage(QPainter &peintre, const Facture &facture, const QRectF &cadre, const QPalette &palette)
{
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(Theme::filet(palette), 1));
    peintre.setBrush(Theme::carte(palette));
    peintre.drawRect(cadre.adjusted(0.5, 0.5, -0.5, -0.5));
    peintre.translate(cadre.topLeft());
    const double echelle = cadre.width() / PageFacture::taille.width();
    peintre.scale(echelle, echelle);
    PageFacture::peindre(peintre, facture,
                         {.encre = palette.color(QPalette::WindowText),
                          .gris = Theme::secondaire(palette),
                          .filet = Theme::filet(palette),
                          .accent = Theme::accentTexte(palette)});
    peintre.restore();
}

} // namespace Quillet
