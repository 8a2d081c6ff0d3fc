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

QString Objections::auChamp(const ParChamp &objections, const QString &champ)
{
    for (auto objection = objections.lowerBound(champ); objection != objections.end(); ++objection) {
        const QStringView suite = QStringView(objection.key()).sliced(std::min(champ.size(), objection.key().size()));
        if (!objection.key().startsWith(champ))
            break;
        if (suite.isEmpty() || suite.front() == u'.' || suite.front() == u'[')
            return objection.value();
    }
    return {};
}

QString Objections::nouvelle(const ParChamp &avant, const ParChamp &apres, const QString &champ)
{
    if (const QString sienne = auChamp(apres, champ); !sienne.isEmpty())
        return sienne;
    for (auto objection = apres.begin(); objection != apres.end(); ++objection)
        if (avant.value(objection.key()) != objection.value())
            return objection.value();
    return {};
}

Objections::ParChamp Objections::surLesReglages(const Reglages &reglages, const QList<CodeDestination> &destinations)
{
    return sur(reglages, [&](const Json::Lieu &lieu) { Regles::reglages(reglages, destinations, lieu); });
}

} // namespace Quillet
