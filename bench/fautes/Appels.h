#pragma once

#include <QByteArray>

#include <sys/types.h>

#include <functional>

// The system calls of another process, one of which is made to fail, or to be its last.
namespace Quillet::Appels {

// In the child: said first of all, then around what is to be watched.
void seLaisserSuivre();
void borne();

struct Suivi
{
    long appel = -1;        // what was touched; -1: there were fewer calls
    int statut = 0;         // as waitpid gives it
    bool enSuspens = false; // at the end, bytes were written that the disk was not asked to take, or did not
};
// What every call meets besides: some disks take no file without a name.
enum class Disque { local, sansAnonymes };
// Lets the child run to its end. Its call of that rank (from 1) between the two bounds fails with `erreur`; 0 kills the
// child instead. Calls about memory and signals are not counted. A disk that does not synchronise never does again.
Suivi suivre(pid_t enfant, Disque disque, int rang, int erreur);

// One call that has come back; `appel` is -1 for the first bound.
struct Fait
{
    long appel = -1;
    qint64 premier = 0; // its first argument
    bool reussi = true;
};
[[nodiscard]] bool synchronise(long appel);
// Lets the child run to its end, held while `apres` looks at what each call between the two bounds has done. Gives how
// it ended, as waitpid does.
int observer(pid_t enfant, Disque disque, const std::function<void(const Fait &)> &apres);

// Of the number, as the kernel calls it.
QByteArray nom(long appel);

} // namespace Quillet::Appels
