#include "composants/Style.h"

#include "composants/Dessin.h"
#include "composants/DessinAscenseur.h"
#include "composants/Icone.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionSlider>
#include <QToolButton>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int hauteurControle = 30;
constexpr int largeurAscenseur = 11;
constexpr int espaceIcone = 7; // between a button's icon and its text

bool contient(const QStyleOption &option, QStyle::StateFlag etat)
{
    return option.state.testFlag(etat);
}

// The one that Return presses stands out, filled with the accent.
bool principal(const QStyleOption &option)
{
    const auto *bouton = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return bouton && bouton->features.testFlag(QStyleOptionButton::DefaultButton)
           && contient(option, QStyle::State_Enabled);
}

void bouton(const QStyleOption &option, QPainter &peintre)
{
    const QPalette &palette = option.palette;
    const bool accentue = principal(option);
    const QColor encre = accentue ? palette.color(QPalette::HighlightedText) : palette.color(QPalette::WindowText);
    const QColor ombre = accentue ? Qt::black : encre; // never nearer to the text
    QColor fond = accentue ? Theme::accent(palette) : Theme::carte(palette);
    if (contient(option, QStyle::State_Sunken))
        fond = Dessin::melange(fond, ombre, 0.12);
    else if (contient(option, QStyle::State_MouseOver) && contient(option, QStyle::State_Enabled))
        fond = Dessin::melange(fond, ombre, 0.05);
    peintre.setPen(QPen(accentue ? fond : Theme::filet(palette), 1));
    peintre.setBrush(fond);
    const QRectF cadre = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    peintre.drawRoundedRect(cadre, Theme::rayonControle, Theme::rayonControle);
    if (contient(option, QStyle::State_HasFocus) && contient(option, QStyle::State_KeyboardFocusChange))
        Dessin::anneauDeFocus(peintre, option.rect, Theme::rayonControle,
                              accentue ? encre : Theme::accentTexte(palette));
}

// The icon and the text side by side, centred together.
void contenuDuBouton(const QStyleOptionButton &option, QPainter &peintre)
{
    const bool actif = contient(option, QStyle::State_Enabled);
    const int icone = option.icon.isNull() ? 0 : option.iconSize.width();
    // Without the & of its key, which is not drawn.
    const int texte = option.fontMetrics.horizontalAdvance(QString(option.text).remove(u'&'));
    const int gauche = option.rect.center().x() - (icone + (icone ? espaceIcone : 0) + texte) / 2;
    const bool accentue = principal(option);
    const auto mode = accentue ? QIcon::Selected : actif ? QIcon::Normal : QIcon::Disabled;
    option.icon.paint(&peintre, {gauche, option.rect.center().y() - icone / 2, icone, icone}, Qt::AlignCenter, mode);
    peintre.setPen(option.palette.color(actif ? QPalette::Active : QPalette::Disabled,
                                        accentue ? QPalette::HighlightedText : QPalette::ButtonText));
    peintre.drawText(
        QRect(gauche + icone + (icone ? espaceIcone : 0), option.rect.top(), texte + 2, option.rect.height()),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, option.text);
}

void texteDuChoix(const QStyleOptionComboBox &option, QPainter &peintre, const QRect &place)
{
    const auto groupe = contient(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    peintre.setPen(option.palette.color(groupe, QPalette::ButtonText));
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, place.width()));
}

void champ(const QStyleOption &option, QPainter &peintre)
{
    const QPalette &palette = option.palette;
    const bool actif = contient(option, QStyle::State_HasFocus);
    const qreal epaisseur = actif ? Dessin::epaisseurDAnneau : 1;
    peintre.setPen(QPen(actif ? Theme::accentTexte(palette) : Theme::filet(palette), epaisseur));
    peintre.setBrush(Dessin::melange(Theme::carte(palette), palette.color(QPalette::Window), 0.5));
    const qreal retrait = epaisseur / 2;
    peintre.drawRoundedRect(QRectF(option.rect).adjusted(retrait, retrait, -retrait, -retrait), 6, 6);
}

void fondDOutil(const QStyleOption &option, QPainter &peintre)
{
    const bool survol = contient(option, QStyle::State_MouseOver) && contient(option, QStyle::State_Enabled);
    const bool enfonce = contient(option, QStyle::State_Sunken);
    const QRectF cadre = QRectF(option.rect).adjusted(3, 3, -3, -3);
    if (survol || enfonce)
        Dessin::aplat(peintre, cadre, Theme::rayonControle,
                      Dessin::transparente(option.palette.color(QPalette::WindowText), enfonce ? 0.14 : 0.07));
}

} // namespace

Style::Style(std::optional<Theme::Mode> mode) : QProxyStyle(QStringLiteral("fusion")), mode_(mode) {}

void Style::polish(QPalette &palette)
{
    const Theme::Mode plateforme = Theme::mode(palette);
    // Colours that are not Qt's own come from a platform theme that follows its desktop by itself, as KDE's does.
    const bool suivie = palette != standardPalette();
    palette = Theme::palette(mode_.value_or(suivie ? plateforme : souhaits_.mode.value_or(plateforme)),
                             souhaits_.contrasteVoulu());
}

void Style::suivre(const Souhaits &souhaits)
{
    souhaits_ = souhaits;
    QApplication::setPalette(QPalette()); // asks for the platform's, and has it polished
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                          const QWidget *widget) const
{
    peintre->save();
    peintre->setRenderHint(QPainter::Antialiasing);
    switch (element) {
    case PE_PanelButtonCommand:
        bouton(*option, *peintre);
        break;
    case PE_PanelLineEdit:
        champ(*option, *peintre);
        break;
    case PE_FrameLineEdit:
        break;
    case PE_PanelButtonTool:
        fondDOutil(*option, *peintre);
        break;
    case PE_FrameFocusRect:
        // Each control draws its own ring, but a flat tool button is not even asked for its panel.
        if (qobject_cast<const QToolButton *>(widget) && contient(*option, State_KeyboardFocusChange))
            Dessin::anneauDeFocus(*peintre, widget->rect(), Theme::rayonControle, Theme::accentTexte(option->palette));
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
    }
    peintre->restore();
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *peintre,
                        const QWidget *widget) const
{
    if (const auto *bouton = qstyleoption_cast<const QStyleOptionButton *>(option);
        bouton && element == CE_PushButtonLabel)
        contenuDuBouton(*bouton, *peintre);
    else if (const auto *choix = qstyleoption_cast<const QStyleOptionComboBox *>(option);
             choix && element == CE_ComboBoxLabel)
        texteDuChoix(*choix, *peintre, subControlRect(CC_ComboBox, choix, SC_ComboBoxEditField, widget));
    else if (element == CE_Splitter)
        peintre->fillRect(option->rect, Theme::filet(option->palette));
    else
        QProxyStyle::drawControl(element, option, peintre, widget);
}

QRect Style::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const QRect cadre = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? cadre.adjusted(6, 0, -6, 0) : cadre;
}

void Style::drawComplexControl(ComplexControl controle, const QStyleOptionComplex *option, QPainter *peintre,
                               const QWidget *widget) const
{
    if (const auto *barre = qstyleoption_cast<const QStyleOptionSlider *>(option); barre && controle == CC_ScrollBar) {
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        DessinAscenseur::peindre(*peintre, *barre);
        peintre->restore();
        return;
    }
    if (controle == CC_ComboBox) {
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        bouton(*option, *peintre);
        const QRectF fleche = subControlRect(controle, option, SC_ComboBoxArrow, widget);
        QRectF chevrons(QPointF(), QSizeF(Theme::aLaTaille(QSize(14, 14))));
        chevrons.moveCenter(fleche.center());
        Icone::peindre(*peintre, QStringLiteral("chevron.up.chevron.down"), chevrons,
                       Theme::secondaire(option->palette));
        peintre->restore();
        return;
    }
    QProxyStyle::drawComplexControl(controle, option, peintre, widget);
}

QRect Style::subControlRect(ComplexControl controle, const QStyleOptionComplex *option, SubControl partie,
                            const QWidget *widget) const
{
    if (const auto *barre = qstyleoption_cast<const QStyleOptionSlider *>(option); barre && controle == CC_ScrollBar)
        return DessinAscenseur::partie(*barre, partie);
    if (controle == CC_ComboBox && partie == SC_ComboBoxArrow)
        return {option->rect.right() - 19, option->rect.top(), 16, option->rect.height()};
    if (controle == CC_ComboBox && partie == SC_ComboBoxEditField)
        return option->rect.adjusted(9, 3, -18, -3);
    return QProxyStyle::subControlRect(controle, option, partie, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contenu,
                              const QWidget *widget) const
{
    QSize taille = QProxyStyle::sizeFromContents(type, option, contenu, widget);
    switch (type) {
    case CT_PushButton:
        return {taille.width() + Theme::aLaTaille(16),
                std::max(taille.height(), contenu.height() + Theme::aLaTaille(14))};
    case CT_ComboBox:
        return {taille.width() + Theme::aLaTaille(10),
                std::max(taille.height(), contenu.height() + Theme::aLaTaille(14))};
    case CT_LineEdit:
        return {taille.width(), std::max(hauteurControle, contenu.height() + 12)};
    case CT_ToolButton:
        return {taille.width() + 8, std::max(taille.height(), contenu.height() + 14)};
    default:
        return taille;
    }
}

int Style::pixelMetric(PixelMetric mesure, const QStyleOption *option, const QWidget *widget) const
{
    switch (mesure) {
    case PM_ScrollBarExtent:
        return largeurAscenseur;
    case PM_ButtonIconSize:
    case PM_SmallIconSize:
        return Theme::aLaTaille(16);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_SplitterWidth:
        return 1;
    default:
        return QProxyStyle::pixelMetric(mesure, option, widget);
    }
}

QIcon Style::standardIcon(StandardPixmap symbole, const QStyleOption *option, const QWidget *widget) const
{
    switch (symbole) {
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return Icone::icone(QStringLiteral("exclamationmark.triangle"));
    case SP_MessageBoxInformation:
    case SP_MessageBoxQuestion:
        return Icone::icone(QStringLiteral("info.circle"));
    default:
        return QProxyStyle::standardIcon(symbole, option, widget);
    }
}

int Style::styleHint(StyleHint indice, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *retour) const
{
    switch (indice) {
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
        return souhaits_.immobile() ? 0 : QProxyStyle::styleHint(indice, option, widget, retour);
    case SH_MenuBar_AltKeyNavigation:
        return 1;
    case SH_ScrollBar_LeftClickAbsolutePosition:
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(indice, option, widget, retour);
    }
}

} // namespace Quillet
