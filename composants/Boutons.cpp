#include "composants/Boutons.h"

#include "composants/Icone.h"

#include <QPushButton>
#include <QVariant>

namespace Quillet {

namespace {

constexpr auto principal = "principal";

} // namespace

QPushButton *Boutons::deFeuille(const QString &texte, const QString &symbole)
{
    auto *bouton = new QPushButton(symbole.isEmpty() ? QIcon() : Icone::icone(symbole), texte);
    bouton->setAutoDefault(false);
    return bouton;
}

void Boutons::rendrePrincipal(QPushButton *bouton)
{
    bouton->setProperty(principal, true);
}

bool Boutons::estPrincipal(const QWidget *bouton)
{
    return bouton && bouton->property(principal).toBool();
}

} // namespace Quillet
