#include "echanges/ProcessusBride.h"

#include <QProcess>

#include <sys/prctl.h>
#include <sys/resource.h>

#include <csignal>

#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif

namespace Quillet {

namespace {

constexpr int mortEnMillisecondes = 1000;

// Run in the new process, before the program.
void limiter(rlim_t secondesDeCalcul)
{
    const auto borner = [](auto ressource, rlim_t borne) {
        const rlimit limite{borne, borne};
        setrlimit(ressource, &limite);
    };
    borner(RLIMIT_CPU, secondesDeCalcul);
    borner(RLIMIT_CORE, 0);
#ifndef __SANITIZE_ADDRESS__ // which reserves terabytes of addresses
    borner(RLIMIT_AS, rlim_t{2} << 30);
#endif
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL); // it does not outlive Quillet
}

} // namespace

void ProcessusBride::preparer(QProcess &processus, int secondesDeCalcul)
{
    processus.setChildProcessModifier([secondes = static_cast<rlim_t>(secondesDeCalcul)] { limiter(secondes); });
    processus.setStandardErrorFile(QProcess::nullDevice()); // decoders are talkative
}

void ProcessusBride::tuer(QProcess &processus)
{
    processus.kill();
    processus.waitForFinished(mortEnMillisecondes);
}

QString ProcessusBride::neSeLancePlus(const QString &programme)
{
    return QStringLiteral("Aucune image ne peut être lue : le programme %1 ne se lance plus. Fermez Quillet, puis "
                          "ouvrez-le de nouveau.")
        .arg(programme);
}

} // namespace Quillet
