#include "ui/ContenuPrincipal.h"

#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Place.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "model/Enumeration.h"
#include "textes/TextesTarifs.h"
#include "ui/Colonnes.h"
#include "ui/Contexte.h"
#include "ui/EcranDeRubrique.h"
#include "ui/ListeRubriques.h"

#include <QSplitter>
#include <QStackedWidget>

#include <algorithm>

namespace Quillet {

namespace {

constexpr QSize tailleMinimale(980, 640);
constexpr int hauteurDuMenu = 24;
constexpr int barreMinimum = 190;
constexpr int barreIdeale = 210;
constexpr int barreMaximum = 260;

QList<ListeRubriques::Entree> entrees()
{
    QList<ListeRubriques::Entree> entrees;
    for (const Rubrique rubrique : tous<Rubrique>) {
        const TraitsDeRubrique t = traits(rubrique);
        entrees.append({t.symbole, t.libelle, QKeySequence(Qt::CTRL | t.touches.front())});
    }
    return entrees;
}

// Where the focus was last in this part, or else where Tab would come in; null: nowhere.
QWidget *foyerDans(QWidget *partie)
{
    const auto prenable = [](const QWidget *widget) {
        return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() && widget->isVisible();
    };
    if (prenable(partie))
        return partie;
    if (QWidget *dernier = partie->focusWidget(); dernier && prenable(dernier))
        return dernier;
    for (QWidget *suivant = partie->nextInFocusChain(); suivant != partie; suivant = suivant->nextInFocusChain())
        if (partie->isAncestorOf(suivant) && prenable(suivant))
            return suivant;
    return nullptr;
}

} // namespace

ContenuPrincipal::ContenuPrincipal(const Contexte &contexte, QWidget *parent)
    : QWidget(parent),
      contexte_(contexte),
      rubriques_(new ListeRubriques(entrees())),
      enVigueur_(new Libelle({}, Libelle::Rang::secondaire)),
      detail_(new QStackedWidget),
      ecrans_(tous<Rubrique>.size(), nullptr)
{
    QWidget *barre = barreLaterale();
    Pile::rangee(
        this, {},
        {Colonnes::entre(barre, detail_, barre, barreIdeale, QStringLiteral("rubriques"), contexte.preferences)});

    connect(rubriques_, &QListWidget::itemSelectionChanged, this, &ContenuPrincipal::changerDEcran);
    connect(&contexte_.catalogue, &Catalogue::change, this, &ContenuPrincipal::actualiser);
    connect(&contexte_.verifications, &Verifications::change, this, &ContenuPrincipal::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &ContenuPrincipal::actualiser);
    connect(&contexte_.jour, &JourCourant::retour, this, &ContenuPrincipal::actualiser);
    actualiser();
    montrer(Rubrique::commande);
}

void ContenuPrincipal::montrer(std::optional<Rubrique> rubrique)
{
    rubriques_->setCurrentRow(rubrique ? static_cast<int>(*rubrique) : -1);
    const bool montree = rubrique && ecranMontre() == ecran(*rubrique); // not kept by a screen that could not be left
    if (montree && isVisible() && !rubriques_->hasFocus())              // else the list says it
        LecteurDEcran::annoncer(this, rubriques_->currentItem()->text());
}

std::optional<Rubrique> ContenuPrincipal::rubrique() const
{
    const auto choisies = rubriques_->selectionModel()->selectedRows();
    return choisies.isEmpty() ? std::nullopt : std::optional(static_cast<Rubrique>(choisies.first().row()));
}

void ContenuPrincipal::changerDeZone(int pas)
{
    QList<EcranDeRubrique::Zone> zones{{rubriques_, rubriques_}};
    zones += ecranMontre()->zones();
    const auto nombre = zones.size();
    qsizetype rang = pas > 0 ? nombre - 1 : 0; // from nowhere, to the first or the last
    for (qsizetype i = 0; i < nombre; ++i)
        if (const QWidget *foyer = window()->focusWidget();
            foyer == zones[i].aire || zones[i].aire->isAncestorOf(foyer))
            rang = i;
    for (qsizetype essai = 1; essai < nombre; ++essai) {
        rang = (rang + pas + nombre) % nombre;
        if (QWidget *foyer = foyerDans(zones[rang].entree)) {
            foyer->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

void ContenuPrincipal::prendreLeFocus()
{
    QWidget *entree = ecranMontre()->zones().constFirst().entree;
    if (entree->focusPolicy() & Qt::TabFocus)
        entree->setFocus();
}

bool ContenuPrincipal::conclure()
{
    EcranDeRubrique *montre = ecranMontre();
    return !montre || montre->conclure();
}

EcranDeRubrique *ContenuPrincipal::ecranMontre() const
{
    return qobject_cast<EcranDeRubrique *>(detail_->currentWidget());
}

void ContenuPrincipal::changerDEcran()
{
    contexte_.jour.regarder(); // before a screen is seen again
    EcranDeRubrique *voulu = ecran(rubrique().value_or(Rubrique::commande));
    if (voulu != ecranMontre() && !conclure()) { // it stays, and says why
        const auto rester = [this] { rubriques_->setCurrentRow(static_cast<int>(ecrans_.indexOf(ecranMontre()))); };
        QMetaObject::invokeMethod(this, rester, Qt::QueuedConnection);
        return;
    }
    detail_->setCurrentWidget(voulu);
    actualiser();
}

QSize ContenuPrincipal::minimumSizeHint() const
{
    // A low screen shows all of the window, whose columns scroll.
    const int hauteur =
        std::min(tailleMinimale.height(), Place::surLEcran(this).height() - Theme::aLaTaille(hauteurDuMenu));
    return QWidget::minimumSizeHint().expandedTo({tailleMinimale.width(), hauteur});
}

QWidget *ContenuPrincipal::barreLaterale()
{
    QWidget *barre = Pile::enColonne({.marges = {0, 14, 0, 0}, .espace = 0}, {{rubriques_, 1}, tarifsEnVigueur()});
    TailleDuTexte::suivre(barre, [this, barre] {
        barre->setMinimumWidth(std::max(barreMinimum, rubriques_->minimumSizeHint().width()));
        barre->setMaximumWidth(std::max(barre->minimumWidth(), Theme::aLaTaille(barreMaximum)));
    });
    barre->setAutoFillBackground(true);
    barre->setBackgroundRole(QPalette::AlternateBase);
    return barre;
}

QWidget *ContenuPrincipal::tarifsEnVigueur()
{
    auto *titre = new Libelle(QStringLiteral("Tarifs Colissimo"), Libelle::Rang::secondaire);
    titre->setFont(Theme::enGras(Theme::legende()));
    enVigueur_->setFont(Theme::legende());
    enVigueur_->setWordWrap(true);
    return Pile::enColonne({.marges = {16, 16, 16, 16}, .espace = 2}, {titre, enVigueur_});
}

EcranDeRubrique *ContenuPrincipal::ecran(Rubrique rubrique)
{
    EcranDeRubrique *&place = ecrans_[static_cast<int>(rubrique)];
    if (!place) {
        place = traits(rubrique).construire(contexte_);
        detail_->addWidget(place);
    }
    return place;
}

void ContenuPrincipal::actualiser()
{
    enVigueur_->setText(TextesTarifs::enVigueur(contexte_.donnees().tarifs(contexte_.jour.aujourdhui())));
    for (const Rubrique rubrique : tous<Rubrique>)
        rubriques_->setPastille(static_cast<int>(rubrique), traits(rubrique).aSignaler(contexte_));
}

} // namespace Quillet
