#pragma once

#include "model/Tarifs.h"

#include <QList>
#include <QString>

// What the tariffs screen says of one schedule: texts only, laid out by the widgets.
namespace TextesTarifs {

struct Palier
{
    QString poids; // "jusqu’à 250 g"
    QString prix;

    bool operator==(const Palier &) const = default;
};

struct Grille
{
    QString nom;
    QString pays; // empty: the name says it all
    QList<Palier> paliers;

    bool operator==(const Grille &) const = default;
};

struct Famille
{
    QString titre;
    QList<Grille> grilles; // at least one

    bool operator==(const Famille &) const = default;
};

// "en vigueur au 1er janvier 2026"
QString enVigueur(const TarifsColissimo &tarifs);
// In the families' order; a grid of an unknown family stands nowhere.
QList<Famille> familles(const TarifsColissimo &tarifs);

} // namespace TextesTarifs
