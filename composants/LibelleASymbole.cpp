#include "composants/LibelleASymbole.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QPainter>

namespace Quillet {

namespace {

constexpr int sousLAnneau = 3; // px

} // namespace

LibelleASymbole::LibelleASymbole(int cote, int espace, QWidget *parent)
    : Libelle({}, Rang::principal, parent), cote_(cote), espace_(espace), couleur_(Theme::secondaire)
{
    setFont(Theme::encadre());
    setWordWrap(true);
    TailleDuTexte::suivre(this, [this] { placer(); });
}

void LibelleASymbole::setSymbole(const QString &symbole, Couleur couleur)
{
    symbole_ = symbole;
    couleur_ = couleur;
    placer();
    update();
}

void LibelleASymbole::placer()
{
    const int autour = focusPolicy() == Qt::NoFocus ? 0 : sousLAnneau;
    setContentsMargins(Theme::aLaTaille(cote_) + espace_, autour, autour, autour);
}

void LibelleASymbole::paintEvent(QPaintEvent *evenement)
{
    Libelle::paintEvent(evenement);
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    if (Dessin::focusVisible(this))
        Dessin::anneauDeFocus(peintre, rect(), Theme::rayonControle, Theme::accentTexte(palette()));
    const int cote = Theme::aLaTaille(cote_);
    const int premiereLigne =
        (height() - heightForWidth(width())) / 2 + contentsMargins().top() + fontMetrics().height() / 2;
    Icone::peindre(peintre, symbole_, QRect(0, premiereLigne - cote / 2, cote, cote), couleur_(palette()));
}

} // namespace Quillet
