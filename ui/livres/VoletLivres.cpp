#include "ui/livres/VoletLivres.h"

#include "composants/Choix.h"
#include "composants/ChoixSegmente.h"
#include "composants/EtatVide.h"
#include "composants/Icone.h"
#include "composants/LigneDeTexte.h"
#include "composants/ListeDite.h"
#include "composants/Pile.h"
#include "composants/SelectionDuLecteur.h"
#include "composants/Theme.h"
#include "model/Catalogue.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesLivres.h"
#include "ui/couvertures/ImagesCouvertures.h"
#include "ui/livres/DelegueLivres.h"
#include "ui/livres/ModeleLivres.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStyle>

namespace Quillet {

namespace {

// The margins belong to the list: its scroll bar stands at the edge of the pane.
class Liste : public ListeDite<QListView>
{
public:
    Liste()
    {
        setViewportMargins(VoletLivres::margeGauche, 0,
                           VoletLivres::marge - style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
    }
};

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
      liste_(new Liste),
      vide_(new EtatVide),
      place_(new QStackedWidget),
      annonce_(this, [this] { return TextesLivres::nombre(modele_->rowCount()); })
{
    liste_->setModel(modele_);
    liste_->setItemDelegate(new DelegueLivres(*modele_, images, liste_));
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
        choisi_ = modele_->livre(indice.row()).id;
        emit choixChange();
    });
    connect(new SelectionDuLecteur(liste_->selectionModel(), this), &SelectionDuLecteur::prise, liste_,
            &QAbstractItemView::setCurrentIndex);
    connect(modele_, &QAbstractItemModel::modelReset, this, &VoletLivres::seReplacer);

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
        vendeurs.append(NomsVendeurs::court(vendeur));
    auto *vendeur = new ChoixSegmente(vendeurs, {.police = Theme::encadre(), .hauteur = 26});
    vendeur->setAccessibleName(QStringLiteral("Vendeur"));
    vendeur->montrer(0);
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
    connect(vendeur, &ChoixSegmente::choisi, this, [this](int choisi) {
        filtre_.vendeur = choisi == 0 ? std::nullopt : std::optional(tous<Vendeur>[choisi - 1]);
        filtrer();
    });
    connect(etat, &Choix::choisi, this, [this](const QString &choisi) {
        filtre_.etat = static_cast<FiltreLivres::Etat>(choisi.toInt());
        filtrer();
    });

    QWidget *filtres =
        Pile::enColonne({.marges = {margeGauche, 16, marge, 4}, .espace = 8}, {recherche_, vendeur, etat});
    // On X11 a list to choose from is called by its label only.
    auto *etiquette = new QLabel(etat->accessibleName(), filtres);
    etiquette->setBuddy(etat);
    etiquette->hide();
    return filtres;
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

// The list was filled again: the same book when it is still there, else the first one.
void VoletLivres::seReplacer()
{
    const bool vide = modele_->rowCount() == 0;
    place_->setCurrentIndex(vide ? 1 : 0);
    if (vide)
        vide_->montrer(QStringLiteral("magnifyingglass"), QStringLiteral("Aucun livre"),
                       catalogue_.donnees().livres.isEmpty()
                           ? QStringLiteral("Le catalogue est vide.")
                           : QStringLiteral("Aucun livre ne répond à la recherche et aux filtres."));
    if (vide)
        emit choixChange();
    else
        liste_->setCurrentIndex(modele_->index(modele_->rang(choisi_).value_or(0)));
}

} // namespace Quillet
