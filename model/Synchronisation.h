#pragma once

#include <cerrno>

namespace Quillet {

// Of an answer to a request to have the disk take something: the error's number, 0 for none; a file system that knows
// no such request is none.
inline int erreurDeSynchronisation(int reponse)
{
    const bool inconnue =
        reponse != 0 && (errno == EINVAL || errno == ENOSYS || errno == ENOTTY || errno == EOPNOTSUPP);
    return reponse == 0 || inconnue ? 0 : errno;
}

} // namespace Quillet
