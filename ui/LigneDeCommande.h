#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// What the program answers to a command line without opening a window, hence without a display.
namespace Quillet::LigneDeCommande {

struct Reponse
{
    int code; // exit status: 0, 1 for data to be corrected, 2 for a command line that is not understood, else
              // LectureDeCouverture's
    QString texte;
};

// None: the command line asks for the window. `arguments`: all of them, the program's name first.
std::optional<Reponse> repondre(const QStringList &arguments);

} // namespace Quillet::LigneDeCommande
