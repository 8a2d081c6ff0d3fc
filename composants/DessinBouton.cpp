#include "composants/DessinBouton.h"

#include "composants/Boutons.h"
#include "composants/Dessin.h"
#include "composants/Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace Quillet {

namespace {

constexpr int espaceIcone = 7; // between the icon and the text

bool contient(const QStyleOption &option, QStyle::StateFlag etat)
{
    return option.state.testFlag(etat);
}

// Stands out, filled with the accent: what Return presses, or what a sheet is for.
bool principal(const QStyleOption &option, const QWidget *widget)
{
    const auto *bouton = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return bouton && contient(option, QStyle::State_Enabled)
           && (bouton->features.testFlag(QStyleOptionButton::DefaultButton) || Boutons::estPrincipal(widget));
}

// Of the text's colour over what lies below: a button shows on a card as on the page.
double voile(const QStyleOption &option)
{
    const double fort = Theme::mode(option.palette) == Theme::Mode::clair ? 1 : 1.3; // dark takes more of it
    if (!contient(option, QStyle::State_Enabled))
        return 0.03 * fort;
    if (contient(option, QStyle::State_Sunken))
        return 0.2 * fort;
    return (contient(option, QStyle::State_MouseOver) ? 0.125 : 0.07) * fort;
}

} // namespace

void DessinBouton::fond(QPainter &peintre, const QStyleOption &option, const QWidget *widget)
{
    const QPalette &palette = option.palette;
    const bool accentue = principal(option, widget);
    const QColor encre = palette.color(accentue ? QPalette::HighlightedText : QPalette::WindowText);
    QColor fond = Dessin::transparente(palette.color(QPalette::Active, QPalette::WindowText), voile(option));
    if (accentue) // darker, never nearer to the text
        fond = Dessin::melange(Theme::accent(palette), Qt::black,
                               contient(option, QStyle::State_Sunken)      ? 0.24
                               : contient(option, QStyle::State_MouseOver) ? 0.12
                                                                           : 0);
    Dessin::encadre(peintre, option.rect, Theme::rayonControle, fond, accentue ? fond : Theme::filet(palette));
    if (contient(option, QStyle::State_HasFocus) && contient(option, QStyle::State_KeyboardFocusChange))
        Dessin::anneauDeFocus(peintre, option.rect, Theme::rayonControle,
                              accentue ? encre : Theme::accentTexte(palette));
}

void DessinBouton::contenu(QPainter &peintre, const QStyleOptionButton &option, const QWidget *widget)
{
    const bool actif = contient(option, QStyle::State_Enabled);
    const int icone = option.icon.isNull() ? 0 : option.iconSize.width();
    // Without the & of its key, which is not drawn.
    const int texte = option.fontMetrics.horizontalAdvance(QString(option.text).remove(u'&'));
    const int gauche = option.rect.center().x() - (icone + (icone ? espaceIcone : 0) + texte) / 2;
    const bool accentue = principal(option, widget);
    const auto mode = accentue ? QIcon::Selected : actif ? QIcon::Normal : QIcon::Disabled;
    option.icon.paint(&peintre, {gauche, option.rect.center().y() - icone / 2, icone, icone}, Qt::AlignCenter, mode);
    peintre.setPen(option.palette.color(actif ? QPalette::Active : QPalette::Disabled,
                                        accentue ? QPalette::HighlightedText : QPalette::ButtonText));
    peintre.drawText(
        QRect(gauche + icone + (icone ? espaceIcone : 0), option.rect.top(), texte + 2, option.rect.height()),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, option.text);
}

void DessinBouton::outil(QPainter &peintre, const QStyleOption &option)
{
    const bool survol = contient(option, QStyle::State_MouseOver) && contient(option, QStyle::State_Enabled);
    const bool enfonce = contient(option, QStyle::State_Sunken);
    const QRectF cadre = QRectF(option.rect).adjusted(3, 3, -3, -3);
    if (survol || enfonce)
        Dessin::aplat(peintre, cadre, Theme::rayonControle,
                      Dessin::transparente(option.palette.color(QPalette::WindowText), enfonce ? 0.14 : 0.07));
}

} // namespace Quillet
