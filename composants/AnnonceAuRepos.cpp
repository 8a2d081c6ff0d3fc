#include "composants/AnnonceAuRepos.h"

#include "composants/LecteurDEcran.h"

using namespace std::chrono_literals;

namespace Quillet {

AnnonceAuRepos::AnnonceAuRepos(QWidget *origine, const std::function<QString()> &texte)
{
    setSingleShot(true);
    setInterval(600ms);
    connect(this, &QTimer::timeout, this, [origine, texte] { LecteurDEcran::annoncer(origine, texte()); });
}

} // namespace Quillet
