#pragma once

#include <QBoxLayout>

#include <functional>
#include <initializer_list>

// Columns and rows, declared part after part, in the order that the keyboard follows.
namespace Quillet::Pile {

// What a column or a row holds: a widget or a layout as it is, or with its share of the room left.
struct Partie
{
    Partie(QWidget *widget, int part = 0, Qt::Alignment alignement = {});
    Partie(QLayout *boite, int part = 0);
    explicit Partie(std::function<void(QBoxLayout &)> geste);

    std::function<void(QBoxLayout &)> poser;
};

using Parties = std::initializer_list<Partie>;

// Nothing but a share of the room left; nothing but so many pixels.
Partie reste(int part = 1);
Partie blanc(int pixels);

struct Mesures
{
    QMargins marges = {};
    int espace = -1; // between the parts; -1: the style's
};

// Laid out in `widget`.
QBoxLayout *colonne(QWidget *widget, const Mesures &mesures, Parties parties = {});
QBoxLayout *rangee(QWidget *widget, const Mesures &mesures, Parties parties = {});

// To be part of another.
QBoxLayout *colonne(const Mesures &mesures, Parties parties);
QBoxLayout *rangee(const Mesures &mesures, Parties parties);

// In a widget of its own.
QWidget *enColonne(const Mesures &mesures, Parties parties);
QWidget *enRangee(const Mesures &mesures, Parties parties);

} // namespace Quillet::Pile
