#include "bench/fautes/Essai.h"
#include "bench/fautes/Parties.h"
#include "bench/fautes/Processus.h"

#include <QFile>
#include <QRandomGenerator>

#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <thread>

namespace Quillet {

namespace {

constexpr int arrets = 1000;
using Rangs = std::array<std::atomic<int>, 4>; // one for each of gestesEntiers()

// In memory that outlives the killed process.
struct Journal
{
    Rangs tenus;  // on the disk
    Rangs voulus; // the same, or the one being written
    std::atomic<bool> pret;
    std::atomic<int> nouveaux; // files found written although the program did not live to know
};

Journal &nouveauJournal()
{
    void *const place = mmap(nullptr, sizeof(Journal), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *new (place) Journal{};
}

Contenu apres(Poste &poste, const Rangs &rangs)
{
    const QList<Geste> suite = gestesEntiers();
    for (qsizetype i = 0; i < suite.size(); ++i)
        if (rangs[std::size_t(i)] > 0)
            suite[i].faire(poste, rangs[std::size_t(i)]);
    return Contenu(poste);
}

// Opens what the killed program left, compares it with what it may be, and saves on and on; returns only on a fault.
int enregistrerSansFin(const Ressources &ressources, const QString &dossier, const QString &temoin, Journal &journal)
{
    Poste poste(ressources, dossier);
    const Contenu trouve(poste);
    QDir(temoin).removeRecursively();
    Poste reference(ressources, temoin);
    const Contenu ancien = apres(reference, journal.tenus);
    const Contenu nouveau = apres(reference, journal.voulus);
    if (!trouve.memesDonnees(ancien) && !trouve.memesDonnees(nouveau)) {
        std::fputs("arrêté au hasard : un fichier n’est ni l’ancien ni le nouveau\n", stderr);
        return 1;
    }
    if (!trouve.memesDonnees(ancien))
        ++journal.nouveaux;
    const QList<Geste> suite = gestesEntiers();
    while (true) {
        for (std::size_t i = 0; i < journal.voulus.size(); ++i) {
            ++journal.voulus[i];
            suite[qsizetype(i)].faire(poste, journal.voulus[i]);
            journal.tenus[i] = journal.voulus[i].load();
        }
        journal.pret = true;
    }
}

// Half of them spread over a few saves, half over the orders of magnitude from a microsecond on.
std::chrono::nanoseconds delai()
{
    const double hasard = QRandomGenerator::global()->generateDouble();
    const double microsecondes =
        QRandomGenerator::global()->generate() % 2 ? 20'000 * hasard : std::pow(10.0, 4.3 * hasard);
    return std::chrono::nanoseconds(qint64(1000 * microsecondes));
}

// A child that has ended still takes signals until it is waited for.
bool court(pid_t enfant)
{
    siginfo_t fin{};
    return waitid(P_PID, static_cast<id_t>(enfant), &fin, WEXITED | WNOHANG | WNOWAIT) == 0 && fin.si_pid == 0;
}

// Whether the process is, as far as the kernel tells without stopping it, in a call that writes or waits for the disk.
bool ecrit(pid_t enfant)
{
    QFile fichier(QStringLiteral("/proc/%1/syscall").arg(enfant));
    const long appel = fichier.open(QIODevice::ReadOnly) ? fichier.readLine().split(' ').first().toLong() : -1;
    return appel == SYS_write || appel == SYS_fdatasync || appel == SYS_linkat || appel == SYS_rename;
}

} // namespace

int arretsAuHasard(const Ressources &ressources, const QString &travail)
{
    const QString dossier = QDir(travail).filePath(QStringLiteral("Quillet"));
    const QString temoin = QDir(travail).filePath(QStringLiteral("temoin"));
    Journal &journal = nouveauJournal();
    int fautes = 0;
    int pendantUnEnregistrement = 0;
    int dansUnAppel = 0;
    for (int arret = 0; arret < arrets; ++arret) {
        journal.pret = false;
        const pid_t enfant = lancer([&] { return enregistrerSansFin(ressources, dossier, temoin, journal); });
        while (!journal.pret && court(enfant))
            std::this_thread::yield();
        std::this_thread::sleep_for(delai());
        dansUnAppel += ecrit(enfant);
        const bool debout = court(enfant);
        kill(enfant, SIGKILL);
        if (attendre(enfant) >= 0 || !debout)
            ++fautes;
        bool dedans = false;
        for (std::size_t i = 0; i < journal.tenus.size(); ++i)
            dedans = dedans || journal.tenus[i] != journal.voulus[i];
        pendantUnEnregistrement += dedans;
    }
    int enregistrements = 0;
    for (const auto &tenu : journal.tenus)
        enregistrements += tenu;
    std::printf("%d arrêts au hasard, %d pendant un des %d enregistrements, %d dans un appel qui écrit ; %d nouveaux, "
                "%d restes temporaires ; %d fautes\n",
                arrets, pendantUnEnregistrement, enregistrements, dansUnAppel, journal.nouveaux.load(),
                nombreDeRestes(dossier), fautes);
    return fautes;
}

} // namespace Quillet
