#pragma once

#include <QString>

class QWidget;

namespace Quillet {

struct Contexte;
struct ListeDeLivres;

// Books from a list, and into one: what the menu's commands do.
namespace Listes {

// Asks for the file, then shows it.
void lire(const Contexte &contexte, QWidget *fenetre);
// Says why, when the file cannot be shown.
void montrer(const Contexte &contexte, const QString &chemin, QWidget *fenetre);
// Held against the books in force. Throws Echec for what is no list at all.
ListeDeLivres lue(const QByteArray &octets, const Contexte &contexte);
// Asks where; the list holds all books.
void ecrire(const Contexte &contexte, QWidget *fenetre);

} // namespace Listes

} // namespace Quillet
