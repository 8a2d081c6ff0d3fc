#include "model/controle/Regles.h"
#include "model/controle/ReglesCommunes.h"

namespace Quillet {

void Regles::pays(const QList<Pays> &pays, const QList<CodeDestination> &destinations, const Json::Lieu &lieu)
{
    ReglesCommunes::sansDoublon(pays, "libelleFr", &Pays::libelleFr, lieu);
    ReglesCommunes::sansDoublon(pays, "libelleEn", &Pays::libelleEn, lieu);
    for (qsizetype i = 0; i < pays.size(); ++i)
        if (const auto &code = pays[i].destination; code && !destinations.isEmpty() && !destinations.contains(*code))
            Json::Lieu(lieu, i).noter("destination", QStringLiteral("aucune destination n’a ce code"));
}

} // namespace Quillet
