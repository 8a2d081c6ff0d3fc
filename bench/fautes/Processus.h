#pragma once

#include <QString>

#include <sys/types.h>

#include <functional>

namespace Quillet {

// In a process of its own, which ends with what `travail` returns; an exception it does not catch is told there.
pid_t lancer(const std::function<int()> &travail);
// What `lancer` started has returned; -1 when it ended otherwise.
int attendre(pid_t enfant);
int dansUnProcessus(const std::function<int()> &travail);

} // namespace Quillet
