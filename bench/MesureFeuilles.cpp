#include "bench/Gestes.h"
#include "bench/Mesures.h"
#include "bench/Programme.h"

namespace Quillet {

namespace {

constexpr int processus = 7;
constexpr int foisParProcessus = 6;
constexpr double aLOuverture = 100; // ms: what a person takes for at once

// The first time in a process, which builds and loads, and the times after it.
QList<Releve> mesurer(const Gestes::Geste &geste, const QString &nom, int livres, std::optional<double> but)
{
    QList<double> premieres;
    QList<double> suivantes;
    for (int i = 0; i < processus; ++i) {
        QList<double> durees = Programme::valeurs(
            QStringLiteral("bench-gestes"), {geste.nom, QString::number(foisParProcessus), QString::number(livres)});
        premieres.append(durees.takeFirst());
        suivantes += durees;
    }
    QList<Releve> releves{releve(nom + QStringLiteral(", première fois"), QStringLiteral("ms"), premieres),
                          releve(nom + QStringLiteral(", ensuite"), QStringLiteral("ms"), suivantes)};
    for (Releve &ligne : releves)
        ligne.but = but;
    return releves;
}

} // namespace

QList<Releve> mesurerFeuilles()
{
    QList<Releve> releves;
    for (const Gestes::Geste &geste : Gestes::ecrans() + Gestes::feuilles())
        releves += mesurer(geste, geste.enMots, 0, aLOuverture);
    const Gestes::Geste livres = Gestes::ecrans().last();
    releves += mesurer(livres, livres.enMots + QStringLiteral(", 300 livres"), 300, aLOuverture);
    releves += mesurer(livres, livres.enMots + QStringLiteral(", 2 000 livres"), 2'000, std::nullopt);
    return releves;
}

} // namespace Quillet
