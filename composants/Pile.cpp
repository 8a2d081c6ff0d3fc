#include "composants/Pile.h"

#include <QWidget>

namespace Quillet::Pile {

namespace {

QBoxLayout *remplie(QBoxLayout *boite, const Mesures &mesures, Parties parties)
{
    boite->setContentsMargins(mesures.marges);
    boite->setSpacing(mesures.espace);
    for (const Partie &partie : parties)
        if (partie.widget)
            boite->addWidget(partie.widget, partie.part, partie.alignement);
        else if (partie.boite)
            boite->addLayout(partie.boite, partie.part);
        else if (partie.blanc > 0)
            boite->addSpacing(partie.blanc);
        else
            boite->addStretch(partie.part);
    return boite;
}

} // namespace

Partie::Partie(QWidget *widget_, int part_, Qt::Alignment alignement_)
    : widget(widget_), part(part_), alignement(alignement_)
{
}

Partie::Partie(QLayout *boite_, int part_) : boite(boite_), part(part_) {}

Partie reste(int part)
{
    return Partie(static_cast<QWidget *>(nullptr), part);
}

Partie blanc(int pixels)
{
    Partie partie = reste(0);
    partie.blanc = pixels;
    return partie;
}

QBoxLayout *colonne(QWidget *widget, const Mesures &mesures, Parties parties)
{
    return remplie(new QVBoxLayout(widget), mesures, parties);
}

QBoxLayout *rangee(QWidget *widget, const Mesures &mesures, Parties parties)
{
    return remplie(new QHBoxLayout(widget), mesures, parties);
}

QBoxLayout *colonne(const Mesures &mesures, Parties parties)
{
    return colonne(nullptr, mesures, parties);
}

QBoxLayout *rangee(const Mesures &mesures, Parties parties)
{
    return rangee(nullptr, mesures, parties);
}

QWidget *enColonne(const Mesures &mesures, Parties parties)
{
    auto *widget = new QWidget;
    colonne(widget, mesures, parties);
    return widget;
}

QWidget *enRangee(const Mesures &mesures, Parties parties)
{
    auto *widget = new QWidget;
    rangee(widget, mesures, parties);
    return widget;
}

} // namespace Quillet::Pile
