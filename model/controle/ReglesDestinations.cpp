#include "model/BonDeCommande.h"
#include "model/controle/Regles.h"
#include "model/controle/ReglesCommunes.h"

namespace Quillet {

namespace {

QStringList fichiersSans(const CodeGrille &grille, const Regles::TarifsParFichier &fichiers)
{
    QStringList noms;
    for (const auto &[nom, tarifs] : fichiers)
        if (const auto codes = ReglesCommunes::codes(tarifs.grilles); !codes.isEmpty() && !codes.contains(grille))
            noms.append(nom);
    return noms;
}

} // namespace

void Regles::destinations(const QList<Destination> &destinations, const TarifsParFichier &tarifs,
                          const Json::Lieu &lieu)
{
    ReglesCommunes::sansDoublon(destinations, "code", &Destination::code, lieu);
    for (qsizetype i = 0; i < destinations.size(); ++i) {
        const Destination &destination = destinations[i];
        const Json::Lieu place(lieu, i);
        if (const QStringList noms = fichiersSans(destination.grille, tarifs); !noms.isEmpty())
            place.noter("grille", QStringLiteral("pas de grille « %1 » dans %2")
                                      .arg(destination.grille.texte(), noms.join(QStringLiteral(", "))));
        if (destination.douane && destination.douaneSauf)
            place.noter("douaneSauf", QStringLiteral("sans effet, douane étant true"));
    }
    const auto codes = ReglesCommunes::codes(destinations);
    const CodeDestination deDepart = BonDeCommande().codeDestination;
    if (codes.size() == destinations.size() && !codes.contains(deDepart))
        lieu.noter(QStringLiteral("aucune n’a le code « %1 », celui d’une nouvelle commande").arg(deDepart.texte()));
}

} // namespace Quillet
