#include "bench/fautes/Parties.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>

using namespace Quillet;

namespace {

struct Partie
{
    const char *nom;
    int (*faire)(const Ressources &, const QString &travail);
    const char *base; // where its folders lie: a real disk where its waits matter, memory where they do not
};

constexpr auto parties = std::to_array<Partie>({
    {"hasard", arretsAuHasard, "/var/tmp"},
    {"arrets", arretsAChaqueAppel, "/dev/shm"},
    {"coupures", coupures, "/dev/shm"},
    {"appels", appelsEnEchec, "/dev/shm"},
    {"plein", disquesPleins, "/var/tmp"},
    {"dossiers", dossiersPerdus, "/var/tmp"},
    {"reprises", reprises, "/dev/shm"},
});

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList voulues = QCoreApplication::arguments().mid(1);
    const auto ressources = Ressources::duProgramme();
    int fautes = 0;
    for (const Partie &partie : parties) {
        if (!voulues.isEmpty() && !voulues.contains(QString::fromUtf8(partie.nom)))
            continue;
        const QTemporaryDir travail(QString::fromUtf8(partie.base) + QStringLiteral("/fautes-XXXXXX"));
        const auto debut = std::chrono::steady_clock::now();
        fautes += partie.faire(ressources, travail.path());
        const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut;
        std::printf("    %s : %.0f s\n", partie.nom, duree.count());
    }
    return fautes ? 1 : 0;
}
