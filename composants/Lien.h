#pragma once

class QUrl;
class QWidget;

namespace Lien {

// Opens an https page in the browser; says the address to copy when no browser answers.
void ouvrir(const QUrl &adresse, QWidget *parent);

} // namespace Lien
