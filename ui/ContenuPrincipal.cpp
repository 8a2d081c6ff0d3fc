#include "ui/ContenuPrincipal.h"

#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Partage.h"
#include "composants/Place.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "model/Catalogue.h"
#include "model/Commande.h"
#include "model/Format.h"
#include "textes/TextesTarifs.h"
#include "ui/JourCourant.h"
#include "ui/ListeRubriques.h"
#include "ui/commande/VueCommande.h"
#include "ui/livres/VueLivres.h"
#include "ui/tarifs/VueTarifs.h"
#include "watch/Verifications.h"

#include <QHBoxLayout>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize tailleMinimale(980, 640);
constexpr int hauteurDuMenu = 24;
constexpr int barreMinimum = 190;
constexpr int barreIdeale = 210;
constexpr int barreMaximum = 260;

} // namespace

ContenuPrincipal::ContenuPrincipal(Catalogue &catalogue, Commande &commande, Verifications &verifications,
                                   ImagesCouvertures &images, Preferences preferences, JourCourant &jour,
                                   QWidget *parent)
    : QWidget(parent),
      catalogue_(catalogue),
      commande_(commande),
      verifications_(verifications),
      images_(images),
      preferences_(std::move(preferences)),
      jour_(jour),
      rubriques_(new ListeRubriques({{QStringLiteral("shippingbox"), QStringLiteral("Commande")},
                                     {QStringLiteral("tablecells"), QStringLiteral("Tarifs Colissimo")},
                                     {QStringLiteral("books.vertical"), QStringLiteral("Livres")}})),
      enVigueur_(new Libelle({}, Libelle::Rang::secondaire)),
      detail_(new QStackedWidget),
      ecrans_(3, nullptr)
{
    QWidget *barre = barreLaterale();
    auto *colonnes = new QHBoxLayout(this);
    colonnes->setContentsMargins(0, 0, 0, 0);
    colonnes->addWidget(Partage::entre(barre, detail_, barre, Theme::aLaTaille(barreIdeale)));

    connect(rubriques_, &QListWidget::itemSelectionChanged, this, [this] {
        jour_.regarder(); // before a screen is seen again
        detail_->setCurrentWidget(ecran(rubrique().value_or(Rubrique::commande)));
        actualiser();
    });
    connect(&catalogue_, &Catalogue::change, this, &ContenuPrincipal::actualiser);
    connect(&verifications_, &Verifications::change, this, &ContenuPrincipal::actualiser);
    connect(&jour_, &JourCourant::change, this, &ContenuPrincipal::actualiser);
    connect(&jour_, &JourCourant::retour, this, &ContenuPrincipal::actualiser);
    actualiser();
    montrer(Rubrique::commande);
}

void ContenuPrincipal::montrer(std::optional<Rubrique> rubrique)
{
    rubriques_->setCurrentRow(rubrique ? static_cast<int>(*rubrique) : -1);
    if (rubrique && isVisible() && !rubriques_->hasFocus()) // else the list says it
        LecteurDEcran::annoncer(this, rubriques_->currentItem()->text());
}

std::optional<Rubrique> ContenuPrincipal::rubrique() const
{
    const auto choisies = rubriques_->selectionModel()->selectedRows();
    return choisies.isEmpty() ? std::nullopt : std::optional(static_cast<Rubrique>(choisies.first().row()));
}

bool ContenuPrincipal::conclure()
{
    auto *livres = qobject_cast<VueLivres *>(detail_->currentWidget());
    return !livres || livres->conclure();
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
    auto *barre = new QWidget;
    TailleDuTexte::suivre(barre, [this, barre] {
        barre->setMinimumWidth(std::max(barreMinimum, rubriques_->minimumSizeHint().width()));
        barre->setMaximumWidth(std::max(barre->minimumWidth(), Theme::aLaTaille(barreMaximum)));
    });
    barre->setAutoFillBackground(true);
    barre->setBackgroundRole(QPalette::AlternateBase);
    auto *colonne = new QVBoxLayout(barre);
    colonne->setContentsMargins(0, 14, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(rubriques_, 1);
    colonne->addWidget(tarifsEnVigueur());
    return barre;
}

QWidget *ContenuPrincipal::tarifsEnVigueur()
{
    auto *titre = new Libelle(QStringLiteral("Tarifs Colissimo"), Libelle::Rang::secondaire);
    titre->setFont(Theme::enGras(Theme::legende()));
    enVigueur_->setFont(Theme::legende());
    enVigueur_->setWordWrap(true);
    auto *bloc = new QWidget;
    auto *lignes = new QVBoxLayout(bloc);
    lignes->setContentsMargins(16, 16, 16, 16);
    lignes->setSpacing(2);
    lignes->addWidget(titre);
    lignes->addWidget(enVigueur_);
    return bloc;
}

QWidget *ContenuPrincipal::ecran(Rubrique rubrique)
{
    QWidget *&place = ecrans_[static_cast<int>(rubrique)];
    if (!place) {
        switch (rubrique) {
        case Rubrique::commande:
            place = new VueCommande(catalogue_, commande_, images_, preferences_, jour_);
            break;
        case Rubrique::tarifs:
            place = new VueTarifs(catalogue_, commande_, verifications_, jour_);
            break;
        case Rubrique::livres:
            place = new VueLivres(catalogue_, images_, jour_);
            break;
        }
        detail_->addWidget(place);
    }
    return place;
}

void ContenuPrincipal::actualiser()
{
    const TarifsColissimo &tarifs = catalogue_.donnees().tarifs(jour_.aujourdhui());
    enVigueur_->setText(TextesTarifs::enVigueur(tarifs));
    rubriques_->setPastille(static_cast<int>(Rubrique::tarifs), verifications_.nombreASignaler());
}

// The weekly checks are looked at once, when there is a window to tell their outcome.
void ContenuPrincipal::showEvent(QShowEvent *evenement)
{
    QWidget::showEvent(evenement);
    if (!std::exchange(dejaMontre_, true)) // the network's own start must not delay the first image
        QTimer::singleShot(apresLaPremiereImage, this, [this] { verifications_.verifierSiNecessaire(catalogue_); });
}
