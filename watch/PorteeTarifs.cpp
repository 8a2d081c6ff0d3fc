#include "watch/PorteeTarifs.h"

#include <algorithm>

namespace Quillet {

PorteeTarifs PorteeTarifs::de(const Donnees &donnees, const TarifsColissimo &lus, const Jour &aujourdhui)
{
    const Jour premier = std::max(lus.validite, aujourdhui);
    const TarifsColissimo &sansEux = donnees.tarifs(premier);
    PorteeTarifs portee;
    portee.correction = sansEux.validite == lus.validite;
    // Before the first schedule the earliest one counts, until another comes.
    portee.sansEffet = lus.validite < sansEux.validite && sansEux.validite <= premier;
    portee.desAujourdhui = !portee.sansEffet && lus.validite <= aujourdhui;
    if (portee.sansEffet)
        return portee;
    portee.ecarts = EcartTarif::ecarts(sansEux, lus);
    for (const GrilleColissimo &grille : sansEux.grilles)
        if (!lus.grille(grille.code))
            portee.grillesDisparues.append(grille.nomCourt);
    return portee;
}

} // namespace Quillet
