#include "ui/livres/PoseDeCouverture.h"

#include "echanges/DepotCouvertures.h"
#include "ui/Contexte.h"

namespace Quillet {

Livre avecCouverture(const Contexte &contexte, Livre livre, const CouverturePrete &couverture)
{
    const QDir dossier(contexte.catalogue.ressources().chemin(QStringLiteral("couvertures")));
    livre.couverture = Couvertures::deposer(dossier, livre.titre, couverture);
    contexte.images.ajouter(livre.couverture);
    return livre;
}

} // namespace Quillet
