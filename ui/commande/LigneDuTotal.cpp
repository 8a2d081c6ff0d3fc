#include "ui/commande/LigneDuTotal.h"

#include "composants/Chiffres.h"
#include "composants/Libelle.h"
#include "composants/NombreRoulant.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "ui/commande/RangeeMontant.h"

#include <QEvent>

namespace Quillet {

LigneDuTotal::LigneDuTotal(const QString &libelle, const QMargins &marges, QWidget *parent)
    : QWidget(parent), libelle_(new Libelle(libelle)), total_(new NombreRoulant)
{
    QFont titre = Theme::enGras(font());
    titre.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    libelle_->setFont(titre);
    total_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Pile::rangee(this, {.marges = marges}, {libelle_, {total_, 1}});
}

void LigneDuTotal::montrer(const std::optional<Centimes> &total)
{
    total_->setForegroundRole(total ? QPalette::WindowText : Theme::roleSecondaire);
    RangeeMontant::afficher(total_, total);
    ajuster();
}

void LigneDuTotal::ajuster()
{
    const QRect dedans = rect().marginsRemoved(layout()->contentsMargins());
    const int place = dedans.width() - libelle_->sizeHint().width() - layout()->spacing();
    total_->setFont(Chiffres::ajustee(Theme::grandChiffre(), total_->text(), place));
}

void LigneDuTotal::resizeEvent(QResizeEvent *)
{
    ajuster();
}

void LigneDuTotal::changeEvent(QEvent *evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange && layout())
        ajuster();
}

} // namespace Quillet
