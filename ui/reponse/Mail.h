#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

class QObject;

// The way out through the user's mail program.
namespace Quillet::Mail {

struct Message
{
    QString a; // the one plain address that it gives is handed over, or none
    QString sujet;
    QString corps;
    std::optional<QString> enGras; // its first occurrence is bold, where the mail program takes styled text
};

// Opens it as a new message, ready to send. False, and nothing done, without any mail program. Throws Echec when there
// is one that does not start; where only the desktop can tell, or does not within `patience`, the sentence for the user
// comes later by `echouer`, unless `temoin` has gone by then.
bool ecrire(const Message &message, QObject *temoin, const std::function<void(const QString &)> &echouer,
            std::chrono::milliseconds patience = std::chrono::seconds(8));

} // namespace Quillet::Mail
