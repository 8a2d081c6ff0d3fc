#pragma once

#include <QtGlobal>

#include <sys/resource.h>

#include <csignal>

namespace Quillet {

// The system refuses to let any file grow beyond a few bytes: what a full disk does, without one.
class DisquePlein
{
public:
    explicit DisquePlein(rlim_t octets = 16)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &avant_);
        const rlimit limite{octets, avant_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~DisquePlein() { setrlimit(RLIMIT_FSIZE, &avant_); }
    Q_DISABLE_COPY_MOVE(DisquePlein)

private:
    rlimit avant_{};
};

} // namespace Quillet
