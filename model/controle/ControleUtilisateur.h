#pragma once

#include <QDir>
#include <QStringList>

// What is to be corrected in the files of a user's folder, which loading would ignore without a word. None of them has
// to be there.
namespace Quillet::ControleUtilisateur {

// Each begins with its folder's path.
QStringList erreurs(const QDir &dossier);

} // namespace Quillet::ControleUtilisateur
