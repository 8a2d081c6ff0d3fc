#pragma once

class QString;
class QUrl;
class QWidget;

namespace Quillet::Lien {

// Opens an https page in the browser; says the address to copy when no browser answers, and is false then.
bool ouvrir(const QUrl &adresse, QWidget *parent);
// Opens a file or a folder in the program that the desktop has for it; says when it is gone, or when none answers.
void ouvrirFichier(const QString &chemin, QWidget *parent);

} // namespace Quillet::Lien
