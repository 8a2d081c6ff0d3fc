#pragma once

#include <QString>

#include <system_error>

// Why the system refused an operation on a file, in French.
namespace Quillet::CauseSysteme {

QString enFrancais(const std::error_code &code);
// Of the sentence that a Qt file object keeps of its last failure.
QString enFrancais(const QString &erreurQt);

} // namespace Quillet::CauseSysteme
