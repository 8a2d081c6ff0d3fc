#include "ui/commun/Partage.h"

#include <QSplitter>

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
    return partage;
}
