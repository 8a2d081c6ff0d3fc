#include "model/Suivi.h"

#include <algorithm>

namespace Quillet {

void Suivi::suivre(const BonDeCommande &bon, const std::optional<Centimes> &total)
{
    memoire_.suivre(bon);
    if (Faits &faits = memoire_.faits(); faits.total != total)
        faits = {.total = total};
}

void Suivi::faire(Etape etape)
{
    memoire_.faits().suivante = etape == Etape::lien ? Etape::reponse : Etape::facture;
}

void Suivi::copier(const TexteACopier &texte)
{
    memoire_.faits().copies[texte.titre] = {texte.valeur, fois(texte) + 1};
    memoire_.faits().dernierCopie = texte.titre;
}

// Another value under the same title was never copied.
int Suivi::fois(const TexteACopier &texte) const
{
    const Copie copie = memoire_.faits().copies.value(texte.titre);
    return copie.valeur == texte.valeur ? copie.fois : 0;
}

qsizetype Suivi::aCopier(const QList<TexteACopier> &textes) const
{
    const auto compter = [this](const TexteACopier &texte) { return fois(texte); };
    return std::ranges::min_element(textes, {}, compter) - textes.begin();
}

} // namespace Quillet
