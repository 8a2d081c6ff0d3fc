#include "model/Suivi.h"

#include <algorithm>
#include <utility>

namespace Quillet {

void Suivi::suivre(const BonDeCommande &bon, const std::optional<Centimes> &total)
{
    const BonDeCommande vente = bon.vente();
    const auto concerne = [&](const Fait &fait) { return fait.vente == vente && fait.total == total; };
    if (concerne(fait_))
        return;
    const Fait neuf{.vente = vente, .total = total};
    const Fait ancien = std::exchange(fait_, concerne(precedent_) ? precedent_ : neuf);
    if (ancien.vente.rangAcheteur != vente.rangAcheteur)
        precedent_ = ancien;
}

void Suivi::faire(Etape etape)
{
    fait_.suivante = etape == Etape::lien ? Etape::reponse : Etape::facture;
}

void Suivi::copier(const TexteACopier &texte)
{
    fait_.copies[texte.titre] = {texte.valeur, fois(texte) + 1};
    fait_.dernierCopie = texte.titre;
}

// Another value under the same title was never copied.
int Suivi::fois(const TexteACopier &texte) const
{
    const Copie copie = fait_.copies.value(texte.titre);
    return copie.valeur == texte.valeur ? copie.fois : 0;
}

qsizetype Suivi::aCopier(const QList<TexteACopier> &textes) const
{
    const auto compter = [this](const TexteACopier &texte) { return fois(texte); };
    return std::ranges::min_element(textes, {}, compter) - textes.begin();
}

} // namespace Quillet
