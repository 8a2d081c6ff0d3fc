#pragma once

class QPainter;
class QRect;
class QSize;
class QStyleOption;
class QStyleOptionMenuItem;
class QWidget;

// Menus and the lists of choices, which look the same.
namespace Quillet::DessinMenu {

inline constexpr int bord = 5; // px, around the entries

// Rounded where the window can be seen through at its corners.
void panneau(QPainter &peintre, const QStyleOption &option, const QWidget *widget);
void entree(QPainter &peintre, const QStyleOptionMenuItem &option);
// An entry of a list, which stands `bord` inside it already.
void choix(QPainter &peintre, const QStyleOptionMenuItem &option);
void defileur(QPainter &peintre, const QStyleOption &option);
void rubrique(QPainter &peintre, const QStyleOptionMenuItem &option, bool souligne);
// The hairline under the bar of menus.
void sousLaBarre(QPainter &peintre, const QStyleOption &option);
void bulle(QPainter &peintre, const QStyleOption &option, const QWidget *widget);

// For a text of this size.
QSize taille(const QStyleOptionMenuItem &option, const QSize &contenu);
// Of a list of choices, around a control that shows one of them: the chosen text comes up over the text shown.
QRect autourDuChoix(const QRect &controle, int retraitDuTexte, int hauteurDUneEntree);

} // namespace Quillet::DessinMenu
