#include "composants/Boutons.h"

#include "composants/Icone.h"

#include <QPushButton>

namespace Quillet {

QPushButton *Boutons::deFeuille(const QString &texte, const QString &symbole)
{
    auto *bouton = new QPushButton(symbole.isEmpty() ? QIcon() : Icone::icone(symbole), texte);
    bouton->setAutoDefault(false);
    return bouton;
}

} // namespace Quillet
