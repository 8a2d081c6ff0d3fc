#pragma once

class QUrl;
class QWidget;

namespace Quillet::Lien {

// Opens an https page in the browser; says the address to copy when no browser answers.
void ouvrir(const QUrl &adresse, QWidget *parent);

} // namespace Quillet::Lien
