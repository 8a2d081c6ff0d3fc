#include "composants/Partage.h"

#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QSplitter>

#include <utility>

namespace Quillet {

QSplitter *Partage::entre(QWidget *gauche, QWidget *droite, QWidget *fixe, int largeur)
{
    auto *partage = new QSplitter;
    partage->setChildrenCollapsible(false);
    partage->addWidget(gauche);
    partage->addWidget(droite);
    droite->raise();               // a splitter lowers what it is given, and a screen reader reads from the lowest up
    partage->handle(1)->raise();   // it reaches over both sides, to be caught easily
    constexpr int grande = 10'000; // whatever is left
    partage->setStretchFactor(0, fixe == gauche ? 0 : 1);
    partage->setStretchFactor(1, fixe == droite ? 0 : 1);
    partage->setSizes({fixe == gauche ? largeur : grande, fixe == droite ? largeur : grande});
    // In proportion to the text, wherever the user has put the limit.
    TailleDuTexte::suivre(partage, [partage, rang = fixe == gauche ? 0 : 1, avant = Theme::aLaTaille(100)]() mutable {
        const int apres = Theme::aLaTaille(100);
        QList<int> largeurs = partage->sizes();
        const int plus = largeurs[rang] * apres / avant - largeurs[rang];
        largeurs[rang] += plus;
        largeurs[1 - rang] -= plus;
        if (std::exchange(avant, apres) != apres)
            partage->setSizes(largeurs);
    });
    return partage;
}

} // namespace Quillet
