#include "model/Suivi.h"

#include <algorithm>

namespace Quillet {

void Suivi::suivre(BonDeCommande bon, const std::optional<Centimes> &total)
{
    bon.langue.reset();
    bon.paysLivraison.clear();
    if (bon == bon_ && total == total_)
        return;
    *this = {};
    bon_ = bon;
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
