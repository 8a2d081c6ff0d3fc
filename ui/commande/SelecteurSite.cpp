#include "ui/commande/SelecteurSite.h"

#include "composants/ChoixSegmente.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "model/Donnees.h"
#include "textes/NomsVendeurs.h"

#include <QRadioButton>

namespace Quillet {

namespace {

QStringList sites(const Donnees &donnees)
{
    QStringList noms;
    for (const Vendeur vendeur : tous<Vendeur>)
        noms.append(NomsVendeurs::site(vendeur, donnees));
    return noms;
}

} // namespace

SelecteurSite::SelecteurSite(const Donnees &donnees, QWidget *parent)
    : QWidget(parent),
      choix_(new ChoixSegmente(sites(donnees), {.police = Theme::enGras(Theme::titre3()),
                                                .style = ChoixSegmente::Style::bleu,
                                                .hauteur = 44,
                                                .marge = 5,
                                                .espace = 4,
                                                .largeurMaximale = 230}))
{
    Pile::rangee(this, {}, {{choix_, 0, Qt::AlignCenter}});
    nommer(donnees);
    connect(choix_, &ChoixSegmente::choisi, this,
            [this](int indice) { emit choisi(tous<Vendeur>[static_cast<std::size_t>(indice)]); });
}

QWidget *SelecteurSite::dernierControle() const
{
    return choix_->bouton(static_cast<int>(tous<Vendeur>.back()));
}

void SelecteurSite::nommer(const Donnees &donnees)
{
    const QList<Vendeur> vendeurs = donnees.vendeurs();
    for (const Vendeur vendeur : tous<Vendeur>) {
        QRadioButton *bouton = choix_->bouton(static_cast<int>(vendeur));
        const QString site = NomsVendeurs::site(vendeur, donnees);
        bouton->setText(site);
        bouton->setAccessibleName(
            QStringLiteral("%1, livres de %2").arg(site, NomsVendeurs::complet(vendeur, donnees)));
        bouton->setVisible(vendeurs.contains(vendeur));
    }
}

void SelecteurSite::montrer(const Donnees &donnees, Vendeur vendeur)
{
    nommer(donnees);
    setVisible(donnees.vendeurs().size() > 1);
    choix_->montrer(static_cast<int>(vendeur));
}

} // namespace Quillet
