#include "ui/commande/SectionLivres.h"

#include "composants/Alerte.h"
#include "composants/Libelle.h"
#include "composants/Theme.h"
#include "model/Format.h"
#include "textes/TextesRecapitulatif.h"

namespace Quillet {

SectionLivres::SectionLivres(QWidget *parent)
    : Section(QStringLiteral("Livres"), {}, parent),
      aucunLivre_(new Libelle(QStringLiteral("Aucun livre pour l’instant : cliquez sur une couverture ou sur +."),
                              Libelle::Rang::secondaire)),
      sousTotal_(QStringLiteral("Sous-total")),
      autres_(new Alerte(QStringLiteral("info.circle"), {}, Alerte::Ton::note))
{
    aucunLivre_->setWordWrap(true);
    sousTotal_.montant->setFont(Theme::enGras(font()));
    groupe()->ajouter(aucunLivre_);
    groupe()->ajouter(sousTotal_.rangee);
    groupe()->ajouter(autres_);
}

void SectionLivres::montrer(const Calcul &calcul, const QString &autres)
{
    const auto textes = TextesRecapitulatif::livres(calcul);
    while (lignes_.size() < textes.size()) {
        lignes_.append(RangeeMontant());
        groupe()->inserer(static_cast<int>(lignes_.size()), lignes_.last().rangee);
        sousTotal_.rangee->raise(); // read after them, too
        autres_->raise();
    }
    for (qsizetype i = 0; i < lignes_.size(); ++i) {
        const auto &[montant, rangee] = lignes_[i];
        rangee->setVisible(i < textes.size());
        if (i >= textes.size())
            continue;
        rangee->setTexte(textes[i].libelle);
        rangee->setDetail(textes[i].detail);
        montant->afficher(textes[i].valeur);
    }
    aucunLivre_->setVisible(textes.isEmpty());
    sousTotal_.rangee->setVisible(!textes.isEmpty());
    sousTotal_.montant->afficher(Format::euros(calcul.sousTotal));
    autres_->montrer(autres);
}

} // namespace Quillet
