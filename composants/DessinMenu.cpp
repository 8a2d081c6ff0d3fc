#include "composants/DessinMenu.h"

#include "composants/Dessin.h"
#include "composants/Theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int marge = 8; // px, inside an entry
constexpr int espace = 7;
constexpr int hauteurMinimale = 28;
constexpr int hauteurDeSeparation = 9;
constexpr int rayonDeBulle = 6;

int coteDeCoche()
{
    return Theme::aLaTaille(14);
}

bool cochable(const QStyleOptionMenuItem &option)
{
    return option.checkType != QStyleOptionMenuItem::NotCheckable || option.menuHasCheckableItems;
}

int place(const QIcon &icone, const QStyleOptionMenuItem &option)
{
    return icone.isNull() && option.maxIconWidth <= 4 ? 0 : Theme::aLaTaille(16) + espace;
}

int avantLeTexte(const QStyleOptionMenuItem &option)
{
    return DessinMenu::bord + marge + (cochable(option) ? coteDeCoche() + espace : 0);
}

void trace(QPainter &peintre, const QRectF &cadre, const QColor &couleur, const QPolygonF &points)
{
    QPolygonF dessin;
    for (const QPointF &point : points)
        dessin.append(cadre.topLeft() + QPointF(point.x() * cadre.width(), point.y() * cadre.height()));
    peintre.setPen(QPen(couleur, cadre.width() * 0.125, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawPolyline(dessin);
}

QRectF carre(const QPointF &centre, qreal cote)
{
    return {centre - QPointF(cote, cote) / 2, QSizeF(cote, cote)};
}

// On what comes up over other cards a hairline alone would be lost.
QColor couleurDuTrait(const QPalette &palette)
{
    const bool renforce = Theme::contraste(palette) == Theme::Contraste::renforce;
    return Dessin::melange(Theme::filet(palette), Theme::secondaire(palette), renforce ? 0 : 0.35);
}

bool transparente(const QWidget *widget)
{
    return widget && widget->window()->testAttribute(Qt::WA_TranslucentBackground);
}

} // namespace

void DessinMenu::panneau(QPainter &peintre, const QStyleOption &option, const QWidget *widget)
{
    const QPalette &palette = option.palette;
    Dessin::encadre(peintre, option.rect, transparente(widget) ? Theme::rayonGroupe : 0, Theme::surgissant(palette),
                    couleurDuTrait(palette));
}

void DessinMenu::entree(QPainter &peintre, const QStyleOptionMenuItem &option)
{
    const QPalette &palette = option.palette;
    const QRect cadre = option.rect.adjusted(bord, 0, -bord, 0);
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        const QRectF ligne(cadre.left() + marge, cadre.center().y(), cadre.width() - 2 * marge, Dessin::trait(peintre));
        peintre.fillRect(Dessin::surLesPixels(peintre, ligne), couleurDuTrait(palette));
        return;
    }
    const bool actif = option.state.testFlag(QStyle::State_Enabled);
    const bool designe = actif && option.state.testFlag(QStyle::State_Selected);
    if (designe)
        Dessin::aplat(peintre, cadre, Theme::rayonGroupe - bord + 1, Theme::accent(palette));
    const QColor encre = palette.color(actif ? QPalette::Active : QPalette::Disabled,
                                       designe ? QPalette::HighlightedText : QPalette::WindowText);
    const qreal milieu = QRectF(cadre).center().y();
    int gauche = cadre.left() + marge;
    if (option.checked && option.checkType != QStyleOptionMenuItem::NotCheckable)
        trace(peintre, carre({gauche + coteDeCoche() / 2.0, milieu}, coteDeCoche()),
              designe ? encre : Theme::accentTexte(palette), {{0.12, 0.55}, {0.38, 0.82}, {0.88, 0.2}});
    gauche = option.rect.left() + avantLeTexte(option);
    if (const int large = place(option.icon, option)) {
        const int cote = large - espace;
        const auto mode = designe ? QIcon::Selected : actif ? QIcon::Normal : QIcon::Disabled;
        option.icon.paint(&peintre, carre({gauche + cote / 2.0, milieu}, cote).toRect(), Qt::AlignCenter, mode);
        gauche += large;
    }
    int droite = cadre.right() + 1 - marge;
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
        trace(peintre, carre({droite - coteDeCoche() / 2.0, milieu}, coteDeCoche()), encre,
              {{0.4, 0.2}, {0.7, 0.5}, {0.4, 0.8}});
        droite -= coteDeCoche();
    }
    const auto textes = option.text.split(u'\t');
    peintre.setFont(option.font);
    if (textes.size() > 1) {
        peintre.setPen(designe || !actif ? encre : Theme::secondaire(palette));
        peintre.drawText(QRect(gauche, cadre.top(), droite - gauche, cadre.height()), Qt::AlignRight | Qt::AlignVCenter,
                         textes[1]);
    }
    peintre.setPen(encre);
    const QFontMetrics mesures(option.font);
    peintre.drawText(QRect(gauche, cadre.top(), droite - gauche, cadre.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                     mesures.elidedText(textes.first(), Qt::ElideRight, droite - gauche, Qt::TextShowMnemonic));
}

// Qt keeps room for icons that no list has, and has filled the row with another colour.
void DessinMenu::choix(QPainter &peintre, const QStyleOptionMenuItem &option)
{
    peintre.fillRect(option.rect, Theme::surgissant(option.palette));
    QStyleOptionMenuItem entiere = option;
    entiere.rect.adjust(-bord, 0, bord, 0);
    entiere.maxIconWidth = 0;
    entree(peintre, entiere);
}

// At an end of a list that goes on, out of sight.
void DessinMenu::defileur(QPainter &peintre, const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    peintre.fillRect(option.rect, Theme::surgissant(palette));
    const bool bas = option.state.testFlag(QStyle::State_DownArrow);
    trace(peintre, carre(QRectF(option.rect).center(), coteDeCoche()), Theme::secondaire(palette),
          bas ? QPolygonF({{0.2, 0.4}, {0.5, 0.7}, {0.8, 0.4}}) : QPolygonF({{0.2, 0.6}, {0.5, 0.3}, {0.8, 0.6}}));
}

// Of the menu bar.
void DessinMenu::rubrique(QPainter &peintre, const QStyleOptionMenuItem &option, bool souligne)
{
    const QPalette &palette = option.palette;
    const bool actif = option.state.testFlag(QStyle::State_Enabled);
    if (actif && option.state.testFlag(QStyle::State_Selected))
        Dessin::aplat(peintre, QRectF(option.rect).adjusted(2, 1, -2, -1), rayonDeBulle,
                      Dessin::transparente(palette.color(QPalette::WindowText),
                                           option.state.testFlag(QStyle::State_Sunken) ? 0.14 : 0.07));
    peintre.setPen(palette.color(actif ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    peintre.drawText(option.rect, Qt::AlignCenter | (souligne ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     option.text);
}

void DessinMenu::sousLaBarre(QPainter &peintre, const QStyleOption &option)
{
    const QPointF debut(option.rect.left(), option.rect.bottom() + 1 - Dessin::trait(peintre));
    Dessin::filet(peintre, debut, option.rect.width(), option.palette);
}

void DessinMenu::bulle(QPainter &peintre, const QStyleOption &option, const QWidget *widget)
{
    const QColor fond = option.palette.color(QPalette::ToolTipBase);
    Dessin::encadre(peintre, option.rect, transparente(widget) ? rayonDeBulle : 0, fond,
                    Dessin::melange(fond, Qt::white, 0.16));
}

QSize DessinMenu::taille(const QStyleOptionMenuItem &option, const QSize &contenu)
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator)
        return {contenu.width(), hauteurDeSeparation};
    const int touches = option.text.contains(u'\t') ? 3 * espace : 0;
    const int apres = option.menuItemType == QStyleOptionMenuItem::SubMenu ? coteDeCoche() : 0;
    return {avantLeTexte(option) + place(option.icon, option) + contenu.width() + touches + apres + marge + bord,
            std::max(Theme::aLaTaille(hauteurMinimale), option.fontMetrics.height() + 2 * espace)};
}

QRect DessinMenu::autourDuChoix(const QRect &controle, int retraitDuTexte, int hauteurDUneEntree)
{
    const int avant = bord + marge + coteDeCoche() + espace;
    const int haut = (controle.height() - hauteurDUneEntree) / 2 - bord;
    return controle.adjusted(retraitDuTexte - avant, haut, marge, 0);
}

} // namespace Quillet
