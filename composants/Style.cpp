#include "composants/Style.h"

#include "composants/Composition.h"
#include "composants/Dessin.h"
#include "composants/DessinAscenseur.h"
#include "composants/DessinBouton.h"
#include "composants/DessinChamp.h"
#include "composants/DessinMenu.h"
#include "composants/Icone.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionSlider>
#include <QTextFormat>
#include <QToolButton>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int hauteurControle = 30;
constexpr int largeurAscenseur = 11;
constexpr int retraitDuChoix = 9; // of its text
constexpr int margeDeBulle = 5;
constexpr int margeDesPropositions = 3; // as much as QCompleter counts when it measures its list

bool contient(const QStyleOption &option, QStyle::StateFlag etat)
{
    return option.state.testFlag(etat);
}

// Of a group, where Fusion leaves its card.
QRect sousLeTitre(const QStyleOption &option, const QWidget *widget)
{
    constexpr int espace = 3;
    const auto *groupe = qobject_cast<const QGroupBox *>(widget);
    const bool titre = groupe && !groupe->title().isEmpty();
    return option.rect.adjusted(0, titre ? option.fontMetrics.height() + espace : 0, 0, 0);
}

// The list that comes up under a field.
bool proposition(const QWidget *widget)
{
    return widget && widget->windowType() == Qt::Popup && qobject_cast<const QAbstractItemView *>(widget);
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

// What comes up over the rest has round corners, where these can be seen through.
void Style::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    const bool liste = widget->inherits("QComboBoxPrivateContainer");
    const bool surgit = liste || proposition(widget) || qobject_cast<QMenu *>(widget) || widget->inherits("QTipLabel");
    if (surgit && Composition::active())
        widget->setAttribute(Qt::WA_TranslucentBackground);
    if (liste)
        widget->setContentsMargins(DessinMenu::bord, 0, DessinMenu::bord, 0);
    if (proposition(widget) || widget->inherits("QComboBoxListView"))
        static_cast<QAbstractScrollArea *>(widget)->viewport()->setAutoFillBackground(false);
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
        DessinBouton::fond(*peintre, *option, widget);
        break;
    case PE_PanelLineEdit:
        if (!DessinChamp::partieDUnAutre(*option, widget))
            DessinChamp::fond(*peintre, *option);
        break;
    case PE_FrameLineEdit:
    case PE_FrameMenu:
        break;
    case PE_FrameGroupBox:
        Dessin::carte(*peintre, sousLeTitre(*option, widget), option->palette);
        break;
    case PE_Frame:
        if (proposition(widget))
            DessinMenu::panneau(*peintre, *option, widget);
        else
            QProxyStyle::drawPrimitive(element, option, peintre, widget);
        break;
    case PE_PanelMenu:
        DessinMenu::panneau(*peintre, *option, widget);
        break;
    case PE_PanelTipLabel:
        DessinMenu::bulle(*peintre, *option, widget);
        break;
    case PE_PanelButtonTool:
        DessinBouton::outil(*peintre, *option);
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
    peintre->save();
    peintre->setRenderHint(QPainter::Antialiasing);
    if (!peindre(element, *option, *peintre, widget)) {
        peintre->restore();
        QProxyStyle::drawControl(element, option, peintre, widget);
        return;
    }
    peintre->restore();
}

// False: drawn as Fusion does.
bool Style::peindre(ControlElement element, const QStyleOption &option, QPainter &peintre, const QWidget *widget) const
{
    const auto *bouton = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const auto *choix = qstyleoption_cast<const QStyleOptionComboBox *>(&option);
    const auto *entree = qstyleoption_cast<const QStyleOptionMenuItem *>(&option);
    switch (element) {
    case CE_PushButtonLabel:
        if (bouton)
            DessinBouton::contenu(peintre, *bouton, widget);
        return bouton;
    case CE_ComboBoxLabel:
        if (choix)
            DessinChamp::texteChoisi(peintre, *choix, subControlRect(CC_ComboBox, choix, SC_ComboBoxEditField, widget));
        return choix;
    case CE_Splitter:
        peintre.fillRect(option.rect, Theme::filet(option.palette));
        return true;
    case CE_MenuItem:
        if (entree)
            (qobject_cast<const QComboBox *>(widget) ? DessinMenu::choix : DessinMenu::entree)(peintre, *entree);
        return entree;
    case CE_MenuBarItem:
        if (entree)
            DessinMenu::rubrique(peintre, *entree, styleHint(SH_UnderlineShortcut, entree, widget, nullptr));
        DessinMenu::sousLaBarre(peintre, option);
        return entree;
    case CE_MenuBarEmptyArea:
        DessinMenu::sousLaBarre(peintre, option);
        return true;
    case CE_MenuScroller:
        DessinMenu::defileur(peintre, option);
        return true;
    case CE_MenuEmptyArea:
    case CE_MenuHMargin:
    case CE_MenuVMargin:
        return true; // the panel is there
    default:
        return false;
    }
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
        DessinBouton::fond(*peintre, *option, widget);
        DessinChamp::chevrons(*peintre, subControlRect(controle, option, SC_ComboBoxArrow, widget), option->palette);
        peintre->restore();
        return;
    }
    if (controle == CC_SpinBox) {
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        DessinChamp::fond(*peintre, *option);
        DessinChamp::chevrons(*peintre,
                              subControlRect(controle, option, SC_SpinBoxUp, widget)
                                  | subControlRect(controle, option, SC_SpinBoxDown, widget),
                              option->palette);
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
        return option->rect.adjusted(retraitDuChoix, 3, -18, -3);
    if (controle == CC_ComboBox && partie == SC_ComboBoxListBoxPopup) {
        QStyleOptionMenuItem entree;
        entree.fontMetrics = option->fontMetrics;
        return DessinMenu::autourDuChoix(option->rect, retraitDuChoix, DessinMenu::taille(entree, {}).height());
    }
    return QProxyStyle::subControlRect(controle, option, partie, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contenu,
                              const QWidget *widget) const
{
    QSize taille = QProxyStyle::sizeFromContents(type, option, contenu, widget);
    const auto *entree = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (type == CT_MenuItem && entree)
        return DessinMenu::taille(*entree, contenu);
    switch (type) {
    case CT_PushButton:
        return {taille.width() + Theme::aLaTaille(16),
                std::max(taille.height(), contenu.height() + Theme::aLaTaille(14))};
    case CT_ComboBox:
        return {taille.width() + Theme::aLaTaille(10),
                std::max(taille.height(), contenu.height() + Theme::aLaTaille(14))};
    case CT_LineEdit:
        return {taille.width(), std::max(hauteurControle, contenu.height() + 12)};
    case CT_MenuBarItem: // room for what marks the one under the pointer
        return {taille.width() + 8, taille.height()};
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
    case PM_MenuPanelWidth:
    case PM_MenuHMargin:
        return 0;
    case PM_MenuVMargin:
        return DessinMenu::bord;
    case PM_DefaultFrameWidth:
        return proposition(widget) ? margeDesPropositions : QProxyStyle::pixelMetric(mesure, option, widget);
    case PM_ToolTipLabelFrameWidth:
        return margeDeBulle;
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
    case SH_UnderlineShortcut: // in the bar, for who is about to press it
        return !qobject_cast<const QMenuBar *>(widget) || widget->hasFocus()
               || QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
    case SH_TextControl_FocusIndicatorTextCharFormat: // of a link
        if (auto *lien = qstyleoption_cast<QStyleHintReturnVariant *>(retour); lien && option) {
            QTextCharFormat anneau;
            anneau.setProperty(QTextFormat::OutlinePen,
                               QPen(Theme::accentTexte(option->palette), Dessin::epaisseurDAnneau));
            lien->variant = anneau;
        }
        return 1;
    case SH_ComboBox_PopupFrameStyle: // the panel has its own
        return QFrame::NoFrame;
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
