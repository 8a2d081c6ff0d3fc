#include "ui/livres/LigneEtat.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QPainter>

namespace Quillet {

namespace {

constexpr int espace = 6;
constexpr int sousLAnneau = 3; // px

int coteSymbole()
{
    return Theme::aLaTaille(16);
}

QString symbole(PrixBouton::Etat etat)
{
    switch (etat) {
    case PrixBouton::Etat::sansPrix:
        return QStringLiteral("minus");
    case PrixBouton::Etat::aJour:
        return QStringLiteral("checkmark.circle");
    case PrixBouton::Etat::garde:
        return QStringLiteral("bookmark");
    case PrixBouton::Etat::aReporter:
        return QStringLiteral("arrow.right");
    }
    Q_UNREACHABLE();
}

QColor couleur(PrixBouton::Etat etat, const QPalette &palette)
{
    switch (etat) {
    case PrixBouton::Etat::aJour:
        return Theme::accentTexte(palette);
    case PrixBouton::Etat::aReporter:
        return Theme::orange(palette);
    default:
        return Theme::secondaire(palette);
    }
}

} // namespace

LigneEtat::LigneEtat(QWidget *parent) : Libelle({}, Rang::secondaire, parent)
{
    setFont(Theme::enGras(Theme::encadre(), QFont::Medium));
    setWordWrap(true);
    TailleDuTexte::suivre(this, [this] { placer(); });
}

void LigneEtat::placer()
{
    const int autour = focusPolicy() == Qt::NoFocus ? 0 : sousLAnneau;
    setContentsMargins(coteSymbole() + espace, autour, autour, autour);
}

void LigneEtat::montrer(PrixBouton::Etat etat, const QString &enMots)
{
    etat_ = etat;
    placer();
    setText(enMots);
    setRang(etat == PrixBouton::Etat::aReporter ? Rang::principal : Rang::secondaire);
    update();
}

void LigneEtat::paintEvent(QPaintEvent *evenement)
{
    Libelle::paintEvent(evenement);
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    if (Dessin::focusVisible(this))
        Dessin::anneauDeFocus(peintre, rect(), Theme::rayonControle, Theme::accentTexte(palette()));
    const int premiereLigne =
        (height() - heightForWidth(width())) / 2 + contentsMargins().top() + fontMetrics().height() / 2;
    Icone::peindre(peintre, symbole(etat_),
                   QRectF(0, premiereLigne - coteSymbole() / 2.0, coteSymbole(), coteSymbole()),
                   couleur(etat_, palette()));
}

} // namespace Quillet
