#include "ui/documents/PageALEcran.h"

#include "composants/Dessin.h"
#include "composants/Theme.h"
#include "ui/documents/PageFacture.h"

#include <QPainter>

namespace Quillet {

void peindreLaPage(QPainter &peintre, const Facture &facture, const QRectF &cadre, const QPalette &palette)
{
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    Dessin::encadre(peintre, cadre, 0, Theme::carte(palette), Theme::filet(palette));
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
