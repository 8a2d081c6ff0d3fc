#pragma once

#include <QDateTime>

#include <functional>

namespace Quillet {

// Day and hour, at any time.
using Maintenant = std::function<QDateTime()>;

} // namespace Quillet
