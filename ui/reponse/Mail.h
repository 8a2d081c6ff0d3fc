#pragma once

#include <QString>

#include <optional>

// The way out through the user's mail program.
namespace Quillet::Mail {

// Opens a new message, ready to send. `a` is handed over only when it is one plain address. The first occurrence of
// `enGras` in `corps` is bold, where the mail program takes styled text. Without any mail program, does nothing.
// Throws Echec when there is one that does not start.
void ecrire(const QString &a, const QString &sujet, const QString &corps, const std::optional<QString> &enGras);

} // namespace Quillet::Mail
