#include "ui/tarifs/ChoixTarifs.h"

#include "model/Catalogue.h"
#include "model/Format.h"
#include "ui/commun/ChoixSegmente.h"
#include "ui/tarifs/TextesTarifs.h"

#include <QHBoxLayout>

#include <utility>

ChoixTarifs::ChoixTarifs(QWidget *parent) : QWidget(parent), place_(new QHBoxLayout(this))
{
    place_->setContentsMargins(0, 0, 0, 0);
    hide();
}

TarifsColissimo ChoixTarifs::tarifs(const Catalogue &catalogue, QDate jour)
{
    const auto suivants = catalogue.tarifsAVenir(jour);
    offrir(suivants);
    return montreLesSuivants_ ? *suivants : catalogue.tarifs(Format::iso(jour));
}

void ChoixTarifs::offrir(const std::optional<TarifsColissimo> &suivants)
{
    const QString offert = suivants ? TextesTarifs::aPartirDu(*suivants) : QString();
    if (offert == offert_)
        return;
    offert_ = offert;
    montreLesSuivants_ = false;
    setVisible(suivants.has_value());
    if (auto *ancien = std::exchange(choix_, nullptr)) {
        ancien->hide();
        ancien->deleteLater(); // it may be the one that was just clicked
    }
    if (!suivants)
        return;
    choix_ = new ChoixSegmente({tr("En vigueur"), offert}, {.police = font()});
    place_->addWidget(choix_);
    connect(choix_, &ChoixSegmente::choisi, this, [this](int indice) {
        montreLesSuivants_ = indice == 1;
        emit choisi();
    });
    choix_->montrer(0);
    choix_->show();
}
