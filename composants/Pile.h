#pragma once

#include <QBoxLayout>

#include <initializer_list>

// Columns and rows, declared part after part, in the order that the keyboard follows.
namespace Quillet::Pile {

// What a column or a row holds: a widget or a layout as it is, or with its share of the room left; else a blank.
struct Partie
{
    Partie(QWidget *widget_, int part_ = 0, Qt::Alignment alignement_ = {});
    Partie(QLayout *boite_, int part_ = 0);

    QWidget *widget = nullptr;
    QLayout *boite = nullptr;
    int part = 0;
    Qt::Alignment alignement;
    int blanc = 0; // px
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
