#include "bench/fautes/Processus.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>

namespace Quillet {

pid_t lancer(const std::function<int()> &travail)
{
    std::fflush(stdout);
    const pid_t enfant = fork();
    if (enfant < 0)
        std::terminate();
    if (enfant > 0)
        return enfant;
    try {
        const int fin = travail();
        std::fflush(stdout);
        _exit(fin);
    } catch (const std::exception &erreur) {
        std::fprintf(stderr, "%s\n", erreur.what());
        _exit(255);
    }
}

int attendre(pid_t enfant)
{
    int statut = 0;
    waitpid(enfant, &statut, 0);
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
}

int dansUnProcessus(const std::function<int()> &travail)
{
    return attendre(lancer(travail));
}

} // namespace Quillet
