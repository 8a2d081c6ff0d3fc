#include "ui/livres/VoletLivres.h"

#include "composants/Choix.h"
#include "composants/ChoixSegmente.h"
#include "composants/EtatVide.h"
#include "composants/Icone.h"
#include "composants/LigneDeTexte.h"
#include "composants/Pile.h"
#include "composants/SelectionDuLecteur.h"
#include "composants/Theme.h"
#include "model/Catalogue.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesLivres.h"
#include "ui/Raccourcis.h"
#include "ui/couvertures/ImagesCouvertures.h"
#include "ui/livres/DelegueLivres.h"
#include "ui/livres/ListeLivres.h"
#include "ui/livres/ModeleLivres.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

namespace Quillet {

namespace {

QString cle(FiltreLivres::Etat etat)
{
    return QString::number(static_cast<int>(etat));
}

} // namespace

VoletLivres::VoletLivres(const Catalogue &catalogue, ImagesCouvertures &images, QWidget *parent)
    : QWidget(parent),
      catalogue_(catalogue),
      modele_(new ModeleLivres(catalogue, this)),
      recherche_(new LigneDeTexte),
      vide_(new EtatVide),
      place_(new QStackedWidget),
      annonce_(this, [this] { return TextesLivres::nombre(modele_->rowCount()); })
{
    auto *dessin = new DelegueLivres(*modele_, images, this);
    liste_ = new ListeLivres(*modele_, *dessin);
    liste_->setModel(modele_);
    liste_->setItemDelegate(dessin);
    liste_->setAccessibleName(QStringLiteral("Livres"));
    liste_->setMouseTracking(true); // the row under the pointer shows
    liste_->setFrameShape(QFrame::NoFrame);
    liste_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    liste_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    liste_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    liste_->verticalScrollBar()->setSingleStep(40);
    liste_->viewport()->setAutoFillBackground(false);
    connect(&images, &ImagesCouvertures::prete, liste_->viewport(), qOverload<>(&QWidget::update));
    connect(liste_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &indice) {
        if (!indice.isValid())
            return; // the list is being filled again
        rang_ = indice.row();
        choisi_ = modele_->livre(rang_).id;
        emit choixChange();
    });
    connect(new SelectionDuLecteur(liste_->selectionModel(), this), &SelectionDuLecteur::prise, liste_,
            &QAbstractItemView::setCurrentIndex);
    connect(modele_, &QAbstractItemModel::modelReset, this, &VoletLivres::seReplacer);

    liste_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(liste_, &QWidget::customContextMenuRequested, this, &VoletLivres::proposer);
    connect(liste_, &ListeLivres::modifier, this, &VoletLivres::modifier);
    connect(liste_, &ListeLivres::retirer, this, &VoletLivres::retirer);
    connect(liste_, &ListeLivres::deplace, this, &VoletLivres::deplace);

    place_->addWidget(liste_);
    place_->addWidget(vide_);
    Pile::colonne(this, {.espace = 0}, {filtres(), {place_, 1}});
    seReplacer();
}

QWidget *VoletLivres::filtres()
{
    recherche_->setInvite(QStringLiteral("Titre, auteur, ISBN"));
    recherche_->setAccessibleName(QStringLiteral("Chercher un livre"));
    recherche_->setClearButtonEnabled(true);
    auto *loupe = recherche_->addAction(Icone::icone(QStringLiteral("magnifyingglass")), QLineEdit::LeadingPosition);
    loupe->setText(QStringLiteral("Aller à la recherche"));
    connect(loupe, &QAction::triggered, this, &VoletLivres::chercher);
    // Qt draws the cross that empties the field, and gives it no name.
    if (auto *croix = recherche_->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction")))
        croix->setText(QStringLiteral("Effacer la recherche"));
    QStringList vendeurs{QStringLiteral("Tous")};
    for (const Vendeur vendeur : tous<Vendeur>)
        vendeurs.append(NomsVendeurs::court(vendeur, catalogue_.donnees()));
    vendeur_ = new ChoixSegmente(vendeurs, {.police = Theme::encadre(), .hauteur = 26});
    vendeur_->setAccessibleName(QStringLiteral("Vendeur"));
    vendeur_->montrer(0);
    auto *etat = new Choix;
    etat->setAccessibleName(QStringLiteral("État"));
    etat->ajouter(QStringLiteral("Tous les livres"), cle(FiltreLivres::Etat::tous));
    etat->ajouter(QStringLiteral("À reporter"), cle(FiltreLivres::Etat::aReporter));
    etat->ajouter(QStringLiteral("À peser"), cle(FiltreLivres::Etat::aPeser));
    etat->ajouter(QStringLiteral("Épuisés"), cle(FiltreLivres::Etat::epuises));

    connect(recherche_, &QLineEdit::textChanged, this, [this](const QString &texte) {
        filtre_.recherche = FiltreLivres::mots(texte);
        filtrer();
    });
    connect(vendeur_, &ChoixSegmente::choisi, this, [this](int choisi) {
        filtre_.vendeur = choisi == 0 ? std::nullopt : std::optional(tous<Vendeur>[choisi - 1]);
        filtrer();
    });
    connect(etat, &Choix::choisi, this, [this](const QString &choisi) {
        filtre_.etat = static_cast<FiltreLivres::Etat>(choisi.toInt());
        filtrer();
    });

    QWidget *filtres =
        Pile::enColonne({.marges = {margeGauche, 16, marge, 4}, .espace = 8}, {recherche_, vendeur_, etat});
    // On X11 a list to choose from is called by its label only.
    auto *etiquette = new QLabel(etat->accessibleName(), filtres);
    etiquette->setBuddy(etat);
    etiquette->hide();
    nommerLesVendeurs();
    connect(&catalogue_, &Catalogue::change, this, &VoletLivres::nommerLesVendeurs);
    return filtres;
}

// With one seller there is nothing to choose.
void VoletLivres::nommerLesVendeurs()
{
    const Donnees &donnees = catalogue_.donnees();
    const QList<Vendeur> vendeurs = donnees.vendeurs();
    for (const Vendeur vendeur : tous<Vendeur>) {
        QRadioButton *bouton = vendeur_->bouton(1 + static_cast<int>(vendeur));
        bouton->setText(NomsVendeurs::court(vendeur, donnees));
        bouton->setVisible(vendeurs.contains(vendeur));
    }
    vendeur_->setVisible(vendeurs.size() > 1);
    if (filtre_.vendeur && !vendeurs.contains(*filtre_.vendeur)) {
        vendeur_->montrer(0);
        filtre_.vendeur.reset();
        filtrer();
    }
    liste_->viewport()->update(); // the groups' titles
}

void VoletLivres::setTarifs(const TarifsColissimo &tarifs)
{
    modele_->setTarifs(tarifs);
}

const Livre *VoletLivres::choisi() const
{
    const QModelIndex indice = liste_->currentIndex();
    return indice.isValid() ? &modele_->livre(indice.row()) : nullptr;
}

void VoletLivres::choisir(qint64 id)
{
    modele_->retenir(id);
    if (const auto rang = modele_->rang(id))
        liste_->setCurrentIndex(modele_->index(*rang));
}

qsizetype VoletLivres::aReporter() const
{
    return modele_->aReporter();
}

bool VoletLivres::aUnSuivant() const
{
    return modele_->suivantAReporter(liste_->currentIndex().row()).has_value();
}

void VoletLivres::passerAuSuivant()
{
    if (const auto suivant = modele_->suivantAReporter(liste_->currentIndex().row()))
        liste_->setCurrentIndex(modele_->index(*suivant));
}

void VoletLivres::chercher()
{
    recherche_->setFocus(Qt::ShortcutFocusReason);
    recherche_->selectAll();
}

void VoletLivres::filtrer()
{
    modele_->setFiltre(filtre_);
    annonce_.start();
}

// The list was filled again: the same book when it is still there, else the one that has its place.
void VoletLivres::seReplacer()
{
    const bool vide = modele_->rowCount() == 0;
    place_->setCurrentIndex(vide ? 1 : 0);
    if (vide && catalogue_.donnees().livres.isEmpty())
        vide_->montrer(QStringLiteral("books.vertical"), QStringLiteral("Aucun livre"),
                       QStringLiteral("Le catalogue est vide."));
    else if (vide)
        vide_->montrer(QStringLiteral("magnifyingglass"), QStringLiteral("Aucun livre"),
                       QStringLiteral("Aucun livre ne répond à la recherche et aux filtres."));
    if (vide)
        emit choixChange();
    else
        liste_->setCurrentIndex(
            modele_->index(modele_->rang(choisi_).value_or(std::min(rang_, modele_->rowCount() - 1))));
}

void VoletLivres::prendreLeFocus()
{
    (place_->currentWidget() == liste_ ? static_cast<QWidget *>(liste_) : recherche_)->setFocus();
}

QList<qint64> VoletLivres::ordre() const
{
    return modele_->ids();
}

// What can be done to the book under the pointer, or to the chosen one.
void VoletLivres::proposer(const QPoint &ou)
{
    if (!catalogue_.donnees().personnelles || !choisi())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto proposer = [menu](const QString &texte, Raccourcis::Geste geste, const std::function<void()> &faire) {
        QAction *action = menu->addAction(texte, menu, faire);
        action->setShortcut(Raccourcis::touches(geste).constFirst());
        action->setShortcutVisibleInContextMenu(true);
    };
    proposer(QStringLiteral("Modifier…"), Raccourcis::Geste::modifierLeLivre, [this] { emit modifier(); });
    proposer(QStringLiteral("Dupliquer…"), Raccourcis::Geste::dupliquerLeLivre, [this] { emit dupliquer(); });
    proposer(QStringLiteral("Retirer"), Raccourcis::Geste::retirerLeLivre, [this] { emit retirer(); });
    menu->addSeparator();
    proposer(QStringLiteral("Monter"), Raccourcis::Geste::monterLeLivre,
             [this] { liste_->deplacer(EditionLivres::Cote::avant); });
    proposer(QStringLiteral("Descendre"), Raccourcis::Geste::descendreLeLivre,
             [this] { liste_->deplacer(EditionLivres::Cote::apres); });
    menu->popup(liste_->viewport()->mapToGlobal(ou));
}

} // namespace Quillet
