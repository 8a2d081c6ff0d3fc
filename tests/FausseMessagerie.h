#pragma once

#include <QStringList>
#include <QTemporaryDir>

namespace Quillet {

// A mail program that notes its arguments, declared on a desktop of its own as a real one is. One a process, made
// before anything asks for the desktop's programs.
class FausseMessagerie
{
public:
    FausseMessagerie();

    // Becomes the handler of mailto: under this name of desktop file, with these arguments on its command line.
    void installer(const QString &nom, const QString &arguments = QStringLiteral("%u")) const;
    // A handler that the desktop starts by asking for its name on the bus.
    void installerSurLeBus(const QString &nom) const;
    // A handler that cannot start.
    void installerCassee(const QString &nom) const;
    void oublier() const;
    // What the program was called with; waits for it.
    [[nodiscard]] QStringList recus() const;

private:
    void declarer(const QString &nom, const QString &commande, bool surLeBus = false) const;

    QTemporaryDir dossier_;
};

// Names and values of the option of Thunderbird that opens a message, in their order.
QList<std::pair<QString, QString>> champsDeThunderbird(const QString &option);

} // namespace Quillet
