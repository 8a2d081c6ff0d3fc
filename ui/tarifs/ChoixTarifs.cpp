#include "ui/tarifs/ChoixTarifs.h"

#include "composants/ChoixSegmente.h"
#include "composants/Pile.h"
#include "textes/TextesTarifs.h"

#include <QRadioButton>

namespace Quillet {

// The choice stands from the start, hidden: what is added later would come last in the keyboard's order.
ChoixTarifs::ChoixTarifs(QWidget *parent)
    : QWidget(parent), choix_(new ChoixSegmente({QStringLiteral("En vigueur"), {}}, {.police = font()}))
{
    Pile::rangee(this, {}, {choix_});
    hide();
    connect(choix_, &ChoixSegmente::choisi, this, [this](int indice) {
        montreLesSuivants_ = indice == 1;
        emit choisi();
    });
}

void ChoixTarifs::actualiser(const Donnees &donnees, QDate jour)
{
    const auto suivants = donnees.tarifsAVenir(jour);
    const QString offert = suivants ? TextesTarifs::aPartirDu(*suivants) : QString();
    if (offert != offert_) {
        offert_ = offert;
        montreLesSuivants_ = false;
        choix_->bouton(1)->setText(offert);
        choix_->montrer(0);
        setVisible(suivants.has_value());
    }
    tarifs_ = montreLesSuivants_ ? *suivants : donnees.tarifs(jour);
}

} // namespace Quillet
