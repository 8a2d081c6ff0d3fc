#include "composants/Pile.h"

#include <QWidget>

#include <utility>

namespace Quillet::Pile {

namespace {

QBoxLayout *remplie(QBoxLayout *boite, const Mesures &mesures, Parties parties)
{
    boite->setContentsMargins(mesures.marges);
    boite->setSpacing(mesures.espace);
    for (const Partie &partie : parties)
        partie.poser(*boite);
    return boite;
}

} // namespace

Partie::Partie(QWidget *widget, int part, Qt::Alignment alignement)
    : poser([=](QBoxLayout &boite) { boite.addWidget(widget, part, alignement); })
{
}

Partie::Partie(QLayout *boite, int part) : poser([=](QBoxLayout &autour) { autour.addLayout(boite, part); }) {}

Partie::Partie(std::function<void(QBoxLayout &)> geste) : poser(std::move(geste)) {}

Partie reste(int part)
{
    return Partie([=](QBoxLayout &boite) { boite.addStretch(part); });
}

Partie blanc(int pixels)
{
    return Partie([=](QBoxLayout &boite) { boite.addSpacing(pixels); });
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
