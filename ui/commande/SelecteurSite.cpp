#include "ui/commande/SelecteurSite.h"

#include "composants/ChoixSegmente.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "textes/NomsVendeurs.h"

#include <QRadioButton>

namespace Quillet {

namespace {

QStringList sites(const Reglages &reglages)
{
    QStringList noms;
    for (const Vendeur vendeur : tous<Vendeur>)
        noms.append(NomsVendeurs::site(vendeur, reglages));
    return noms;
}

} // namespace

SelecteurSite::SelecteurSite(const Reglages &reglages, QWidget *parent)
    : QWidget(parent),
      choix_(new ChoixSegmente(sites(reglages), {.police = Theme::enGras(Theme::titre3()),
                                                 .style = ChoixSegmente::Style::bleu,
                                                 .hauteur = 44,
                                                 .marge = 5,
                                                 .espace = 4,
                                                 .largeurMaximale = 230}))
{
    Pile::rangee(this, {}, {{choix_, 0, Qt::AlignCenter}});
    for (const Vendeur vendeur : tous<Vendeur>)
        choix_->bouton(static_cast<int>(vendeur))
            ->setAccessibleName(
                QStringLiteral("%1, livres de %2")
                    .arg(NomsVendeurs::site(vendeur, reglages), NomsVendeurs::complet(vendeur, reglages)));
    connect(choix_, &ChoixSegmente::choisi, this,
            [this](int indice) { emit choisi(tous<Vendeur>[static_cast<std::size_t>(indice)]); });
}

QWidget *SelecteurSite::dernierControle() const
{
    return choix_->bouton(static_cast<int>(tous<Vendeur>.back()));
}

void SelecteurSite::montrer(Vendeur vendeur)
{
    choix_->montrer(static_cast<int>(vendeur));
}

} // namespace Quillet
