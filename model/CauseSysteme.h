#pragma once

#include <QString>

#include <system_error>

namespace Quillet {

// Why the system refused an operation on a file, in French.
namespace CauseSysteme {

QString enFrancais(const std::error_code &code);
// Of the sentence that a Qt file object keeps of its last failure.
QString enFrancais(const QString &erreurQt);

} // namespace CauseSysteme

} // namespace Quillet
