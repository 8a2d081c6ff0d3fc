#pragma once

#include <QDateTime>

#include <functional>

namespace Quillet {

// The clock that checks are given.
using Maintenant = std::function<QDateTime()>;

} // namespace Quillet
