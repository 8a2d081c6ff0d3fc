#include "ui/reponse/ChoixLangue.h"

#include <QApplication>

ChoixLangue::ChoixLangue(QWidget *parent)
    : ChoixSegmente({QStringLiteral("Français"), QStringLiteral("Anglais")}, {.police = QApplication::font()}, parent)
{
    connect(this, &ChoixSegmente::choisi, this,
            [this](int indice) { emit choisie(indice == 0 ? Langue::francais : Langue::anglais); });
}

void ChoixLangue::montrer(Langue langue)
{
    ChoixSegmente::montrer(langue == Langue::francais ? 0 : 1);
}
