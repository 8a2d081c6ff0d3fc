#include "model/Suivi.h"

#include <algorithm>

namespace Quillet {

void Suivi::suivre(const BonDeCommande &bon, const std::optional<Centimes> &total)
{
    const BonDeCommande vente = bon.vente();
    if (vente == vente_ && total == total_)
        return;
    *this = {};
    vente_ = vente;
    total_ = total;
}

void Suivi::faire(Etape etape)
{
    suivante_ = etape == Etape::lien ? Etape::reponse : Etape::facture;
}

void Suivi::copier(const TexteACopier &texte)
{
    copies_[texte.titre] = {texte.valeur, fois(texte) + 1};
    dernierCopie_ = texte.titre;
}

// Another value under the same title was never copied.
int Suivi::fois(const TexteACopier &texte) const
{
    const Copie copie = copies_.value(texte.titre);
    return copie.valeur == texte.valeur ? copie.fois : 0;
}

qsizetype Suivi::aCopier(const QList<TexteACopier> &textes) const
{
    const auto compter = [this](const TexteACopier &texte) { return fois(texte); };
    return std::ranges::min_element(textes, {}, compter) - textes.begin();
}

} // namespace Quillet
