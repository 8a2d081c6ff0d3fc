#include "model/controle/Objections.h"

#include "model/Couvertures.h"
#include "model/controle/ReglesCommunes.h"

namespace Quillet {

namespace {

QString phrase(const QString &raison)
{
    const QString debut = raison.left(1).toUpper() + raison.mid(1);
    return debut.endsWith(u'.') ? debut : debut + u'.';
}

template <typename T, typename Regle>
Objections::ParChamp sur(const T &valeur, Regle regle)
{
    Json::Constats constats;
    const Json::Lieu racine({}, &constats);
    ReglesCommunes::controler(valeur, racine);
    regle(racine);
    Objections::ParChamp objections;
    for (const auto &[lieu, raison] : constats.notes())
        objections.insert(lieu.mid(1), phrase(raison)); // without the dot that follows the record's name
    return objections;
}

} // namespace

Regles::Reperes Objections::reperes(const Donnees &donnees, const QDir &couvertures)
{
    return {ReglesCommunes::codes(donnees.destinations), donnees.reglages.vendeurs, couvertures,
            Couvertures::fichiers(couvertures)};
}

Objections::ParChamp Objections::surLeLivre(const Livre &livre, const Regles::Reperes &reperes)
{
    return sur(livre, [&](const Json::Lieu &lieu) { Regles::livre(livre, reperes, lieu); });
}

Objections::ParChamp Objections::surLesReglages(const Reglages &reglages, const QList<CodeDestination> &destinations)
{
    return sur(reglages, [&](const Json::Lieu &lieu) { Regles::reglages(reglages, destinations, lieu); });
}

} // namespace Quillet
