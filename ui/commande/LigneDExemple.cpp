#include "ui/commande/LigneDExemple.h"

#include "composants/Boutons.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "textes/TextesExemple.h"
#include "ui/Contexte.h"

#include <QPushButton>

namespace Quillet {

namespace {

const QString cle = QStringLiteral("exemple");

} // namespace

LigneDExemple::LigneDExemple(const Contexte &contexte, QWidget *parent) : QWidget(parent), contexte_(contexte)
{
    auto *phrase = new Libelle(TextesExemple::surLaCommande(), Libelle::Rang::secondaire);
    phrase->setWordWrap(true);
    QPushButton *lesVotres = Boutons::deFeuille(QStringLiteral("Mettre les vôtres…"));
    QPushButton *continuer = Boutons::deFeuille(QStringLiteral("Continuer avec l’exemple"));
    for (QPushButton *bouton : {lesVotres, continuer})
        bouton->setAccessibleDescription(phrase->text());
    connect(lesVotres, &QPushButton::clicked, this, &LigneDExemple::lesVotres);
    connect(continuer, &QPushButton::clicked, this, &LigneDExemple::continuer);
    connect(&contexte.catalogue, &Catalogue::recharge, this, [this] { setVisible(aDire(contexte_)); });
    QBoxLayout *suites = Pile::rangee({.espace = 8}, {lesVotres, continuer, Pile::reste()});
    Pile::colonne(this, {.marges = {Theme::margeDePage, 14, Theme::margeDePage, 0}, .espace = 8}, {phrase, suites});
    if (!aDire(contexte))
        hide();
}

bool LigneDExemple::aDire(const Contexte &contexte)
{
    return contexte.catalogue.ressources().origine() == Origine::exemple && contexte.preferences.texte(cle).isEmpty();
}

// Once it is not remembered, it comes back at the next start, and disturbs nobody.
void LigneDExemple::continuer()
{
    contexte_.preferences.retenirSiPossible(cle, QStringLiteral("garde"));
    QWidget *suivant = nextInFocusChain();
    const auto prenable = [this](const QWidget *widget) {
        return !isAncestorOf(widget) && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus);
    };
    while (suivant != this && !prenable(suivant))
        suivant = suivant->nextInFocusChain();
    suivant->setFocus(); // before it goes: onto what stands below
    hide();
}

} // namespace Quillet
