#include "bench/fautes/Appels.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <iterator>

namespace Quillet {

namespace {

// Nothing of ours asks for its parent: the call only marks the two ends.
constexpr long borneDuSuivi = SYS_getppid;

constexpr auto sansFichier = std::to_array<long>({SYS_mmap, SYS_munmap, SYS_mprotect, SYS_brk, SYS_madvise, SYS_mremap,
                                                  SYS_futex, SYS_rt_sigaction, SYS_rt_sigprocmask, SYS_clock_gettime,
                                                  SYS_gettimeofday, SYS_clock_nanosleep});

struct Nom
{
    long appel;
    const char *nom;
};

constexpr auto noms = std::to_array<Nom>({
    {SYS_access, "access"},         {SYS_chmod, "chmod"},   {SYS_close, "close"},
    {SYS_fchmod, "fchmod"},         {SYS_fcntl, "fcntl"},   {SYS_fdatasync, "fdatasync"},
    {SYS_flock, "flock"},           {SYS_fsync, "fsync"},   {SYS_ftruncate, "ftruncate"},
    {SYS_getdents64, "getdents64"}, {SYS_getpid, "getpid"}, {SYS_getrandom, "getrandom"},
    {SYS_linkat, "linkat"},         {SYS_lseek, "lseek"},   {SYS_mkdir, "mkdir"},
    {SYS_newfstatat, "newfstatat"}, {SYS_openat, "openat"}, {SYS_read, "read"},
    {SYS_readlink, "readlink"},     {SYS_rename, "rename"}, {SYS_rmdir, "rmdir"},
    {SYS_statx, "statx"},           {SYS_uname, "uname"},   {SYS_unlink, "unlink"},
    {SYS_write, "write"},
});

void ecrireRegistre(pid_t enfant, std::size_t place, long valeur)
{
    ptrace(PTRACE_POKEUSER, enfant, place, valeur);
}

// Stopped at the entry of a call: the kernel refuses a call number it does not know, and we say with which error.
void faireEchouer(pid_t enfant, int erreur)
{
    ecrireRegistre(enfant, offsetof(user_regs_struct, orig_rax), -1);
    int statut = 0;
    ptrace(PTRACE_SYSCALL, enfant, nullptr, 0);
    waitpid(enfant, &statut, 0);
    ecrireRegistre(enfant, offsetof(user_regs_struct, rax), -erreur);
}

bool creeUnAnonyme(const __ptrace_syscall_info &info)
{
    return info.entry.nr == SYS_openat && (info.entry.args[2] & O_TMPFILE) == O_TMPFILE;
}

bool ecritUnFichier(const __ptrace_syscall_info &info)
{
    return info.entry.nr == SYS_write && info.entry.args[0] > STDERR_FILENO;
}

} // namespace

void Appels::seLaisserSuivre()
{
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    std::raise(SIGSTOP);
}

void Appels::borne()
{
    syscall(borneDuSuivi);
}

bool Appels::synchronise(long appel)
{
    return appel == SYS_fsync || appel == SYS_fdatasync;
}

Appels::Suivi Appels::suivre(pid_t enfant, Disque disque, int rang, int erreur)
{
    Suivi suivi;
    waitpid(enfant, &suivi.statut, 0);
    ptrace(PTRACE_SETOPTIONS, enfant, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    bool dedans = false;
    int compte = 0;
    while (true) {
        ptrace(PTRACE_SYSCALL, enfant, nullptr, 0);
        waitpid(enfant, &suivi.statut, 0);
        if (WIFEXITED(suivi.statut) || WIFSIGNALED(suivi.statut))
            return suivi;
        __ptrace_syscall_info info{};
        ptrace(PTRACE_GET_SYSCALL_INFO, enfant, sizeof info, &info);
        if (info.op != PTRACE_SYSCALL_INFO_ENTRY)
            continue;
        const long appel = long(info.entry.nr);
        if (appel == borneDuSuivi && dedans)
            break;
        if (appel == borneDuSuivi)
            dedans = true;
        if (!dedans || appel == borneDuSuivi || std::ranges::find(sansFichier, appel) != std::end(sansFichier))
            continue;
        const bool vise = ++compte == rang;
        if (vise)
            suivi.appel = appel;
        const bool refuse = vise || (synchronise(appel) && synchronise(suivi.appel));
        if (vise && erreur == 0)
            kill(enfant, SIGKILL);
        else if (refuse)
            faireEchouer(enfant, erreur);
        else if (disque == Disque::sansAnonymes && creeUnAnonyme(info))
            faireEchouer(enfant, EOPNOTSUPP);
        else if (ecritUnFichier(info))
            suivi.enSuspens = true;
        else if (synchronise(appel))
            suivi.enSuspens = false;
    }
    ptrace(PTRACE_DETACH, enfant, nullptr, nullptr);
    waitpid(enfant, &suivi.statut, 0);
    return suivi;
}

int Appels::observer(pid_t enfant, Disque disque, const std::function<void(const Fait &)> &apres)
{
    int statut = 0;
    waitpid(enfant, &statut, 0);
    ptrace(PTRACE_SETOPTIONS, enfant, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    bool dedans = false;
    Fait fait;
    while (true) {
        ptrace(PTRACE_SYSCALL, enfant, nullptr, 0);
        waitpid(enfant, &statut, 0);
        if (WIFEXITED(statut) || WIFSIGNALED(statut))
            return statut;
        __ptrace_syscall_info info{};
        ptrace(PTRACE_GET_SYSCALL_INFO, enfant, sizeof info, &info);
        if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
            fait = {.appel = long(info.entry.nr), .premier = qint64(info.entry.args[0])};
            if (fait.appel == borneDuSuivi && dedans)
                break;
            if (dedans && disque == Disque::sansAnonymes && creeUnAnonyme(info))
                faireEchouer(enfant, EOPNOTSUPP);
        } else if (info.op == PTRACE_SYSCALL_INFO_EXIT && fait.appel == borneDuSuivi) {
            dedans = true;
            apres({});
        } else if (info.op == PTRACE_SYSCALL_INFO_EXIT && dedans
                   && std::ranges::find(sansFichier, fait.appel) == std::end(sansFichier)) {
            fait.reussi = info.exit.is_error == 0;
            apres(fait);
        }
    }
    ptrace(PTRACE_DETACH, enfant, nullptr, nullptr);
    waitpid(enfant, &statut, 0);
    return statut;
}

QByteArray Appels::nom(long appel)
{
    const auto *const trouve = std::ranges::find(noms, appel, &Nom::appel);
    return trouve == std::end(noms) ? "appel " + QByteArray::number(qlonglong(appel)) : QByteArray(trouve->nom);
}

} // namespace Quillet
