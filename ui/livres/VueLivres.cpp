#include "ui/livres/VueLivres.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Defilement.h"
#include "composants/EnTete.h"
#include "composants/EtatVide.h"
#include "composants/Icone.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "textes/TextesBoutons.h"
#include "textes/TextesGestes.h"
#include "ui/Colonnes.h"
#include "ui/Contexte.h"
#include "ui/livres/FicheLivre.h"
#include "ui/livres/RetourAuxValeurs.h"
#include "ui/livres/VoletLivres.h"
#include "ui/tarifs/ChoixTarifs.h"

#include <QAction>
#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr int largeurDuVolet = 348;
constexpr int marge = VoletLivres::margeGauche;
constexpr int largeurDePage = largeurDuVolet + Theme::largeurDePage + marge; // within its margins
constexpr auto tempsDeLecture = 1s;                                          // of a sentence that says why

// The button in words, with what it would act on; nothing to act on disables it.
void nommer(QToolButton *bouton, const QString &nom, const QString &geste)
{
    QAction *action = bouton->defaultAction();
    const QString texte = geste.isEmpty() ? nom : QStringLiteral("%1 : %2").arg(nom, geste);
    action->setEnabled(!geste.isEmpty());
    action->setToolTip(QStringLiteral("%1 (%2)").arg(texte, action->shortcut().toString(QKeySequence::NativeText)));
    bouton->setAccessibleName(texte);
}

} // namespace

VueLivres::VueLivres(const Contexte &contexte, QWidget *parent)
    : EcranDeRubrique(parent),
      contexte_(contexte),
      historique_(contexte.historique),
      enTete_(new EnTete(QStringLiteral("Livres"), marge)),
      choix_(new ChoixTarifs),
      volet_(new VoletLivres(contexte.catalogue, contexte.images)),
      fiche_(new FicheLivre(contexte.images)),
      echec_(new Alerte),
      annuler_(creerBouton(QStringLiteral("arrow.uturn.backward"), Raccourcis::Geste::annuler)),
      retablir_(creerBouton(QStringLiteral("arrow.uturn.forward"), Raccourcis::Geste::retablir)),
      lecture_(this)
{
    lecture_.setSingleShot(true);
    lecture_.setInterval(tempsDeLecture);
    enTete_->ajouter(choix_);
    enTete_->setLargeur(largeurDePage - marge);
    QWidget *liste = gauche();
    // A splitter sets its own widest width.
    QWidget *colonnes = Pile::enRangee(
        {}, {Colonnes::entre(liste, droite(), liste, largeurDuVolet, QStringLiteral("livres"), contexte.preferences)});
    TailleDuTexte::suivre(colonnes, [colonnes] { colonnes->setMaximumWidth(Theme::aLaTaille(largeurDePage) + marge); });
    QBoxLayout *page = Pile::rangee({.espace = 0}, {Pile::reste(0), {colonnes, 1}, Pile::reste(0)});
    Pile::colonne(this, {.espace = 0}, {enTete_, {page, 1}});

    connect(annuler_->defaultAction(), &QAction::triggered, this,
            [this] { tenter([this] { montrerLeTouche(historique_.annuler()); }); });
    connect(retablir_->defaultAction(), &QAction::triggered, this,
            [this] { tenter([this] { montrerLeTouche(historique_.retablir()); }); });
    connect(fiche_, &FicheLivre::modification, this,
            [this](const Livre &livre, const QString &geste) { tenter([&] { historique_.modifier(livre, geste); }); });
    connect(fiche_, &FicheLivre::reporter, this, [this](const Livre &livre, const QList<PrixBouton> &boutons) {
        tenter([&] { historique_.reporter(livre, boutons, TextesGestes::report(livre, boutons.size())); });
    });
    connect(fiche_, &FicheLivre::garder, this, [this](const Livre &livre, const PrixBouton &bouton) {
        tenter([&] { historique_.garder(livre, bouton, TextesGestes::garde(livre)); });
    });
    connect(fiche_, &FicheLivre::saisieRefusee, &lecture_, qOverload<>(&QTimer::start));
    connect(&historique_, &Historique::change, this, &VueLivres::montrerAnnulation);
    connect(fiche_, &FicheLivre::livreSuivant, volet_, &VoletLivres::passerAuSuivant);
    connect(volet_, &VoletLivres::choixChange, this, &VueLivres::actualiser);
    connect(choix_, &ChoixTarifs::choisi, this, &VueLivres::actualiser);
    connect(&contexte_.catalogue, &Catalogue::change, this, &VueLivres::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &VueLivres::actualiser);
    montrerAnnulation();
    Raccourcis::lier(this, Raccourcis::Geste::chercherUnLivre, [this] { volet_->chercher(); });
}

// A button of the head, also reached by keys.
QToolButton *VueLivres::creerBouton(const QString &symbole, Raccourcis::Geste geste)
{
    auto *action = new QAction(Icone::icone(symbole), {}, this);
    action->setShortcuts(Raccourcis::touches(geste));
    addAction(action);
    auto *bouton = new QToolButton;
    bouton->setDefaultAction(action);
    bouton->setAutoRaise(true);
    bouton->setFocusPolicy(Qt::StrongFocus);
    enTete_->ajouter(bouton);
    return bouton;
}

QWidget *VueLivres::gauche()
{
    QPushButton *revenir = Boutons::deFeuille(QStringLiteral("Revenir aux valeurs d’origine…"));
    connect(revenir, &QPushButton::clicked, this, &VueLivres::revenir);
    QBoxLayout *pied = Pile::rangee({.marges = {VoletLivres::margeGauche, 10, VoletLivres::marge, 14}}, {{revenir, 1}});
    return Pile::enColonne({.espace = 0}, {{volet_, 1}, pied});
}

QWidget *VueLivres::droite()
{
    TailleDuTexte::suivre(fiche_, [this] { fiche_->setMaximumWidth(Theme::aLaTaille(Theme::largeurDePage)); });
    const int ascenseur = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    auto *defilement = new Defilement;
    defilement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    defilement->setWidget(
        Pile::enRangee({.marges = {marge, 24, marge - ascenseur, 28}}, {{fiche_, 1}, Pile::reste(0)}));
    place_ = new QStackedWidget;
    place_->addWidget(defilement);
    place_->addWidget(new EtatVide(QStringLiteral("books.vertical"), QStringLiteral("Aucun livre choisi")));

    // What failed is said above the page, in sight wherever the page stands.
    echec_->setContentsMargins(marge, 14, marge, 0);
    return Pile::enColonne({.espace = 0}, {echec_, {place_, 1}});
}

void VueLivres::actualiser()
{
    if (!isVisible())
        return; // up to date again when it shows
    choix_->actualiser(contexte_.donnees(), contexte_.jour.aujourdhui());
    const TarifsColissimo &tarifs = choix_->tarifs();
    volet_->setTarifs(tarifs);
    enTete_->setSousTitre(TextesBoutons::bilan(contexte_.donnees().livres.size(), volet_->aReporter()));
    const Livre *choisi = volet_->choisi();
    place_->setCurrentIndex(choisi ? 0 : 1);
    if (choisi)
        fiche_->montrer(*choisi, contexte_.donnees().boutons(*choisi, tarifs), tarifs, volet_->aUnSuivant());
}

// A disabled button would hand the focus to a neighbour that has nothing to do with it.
void VueLivres::montrerAnnulation()
{
    for (const QToolButton *bouton : {annuler_, retablir_})
        bouton->defaultAction()->setEnabled(true);
    if (annuler_->hasFocus() && historique_.aAnnuler().isEmpty())
        retablir_->setFocus();
    else if (retablir_->hasFocus() && historique_.aRetablir().isEmpty())
        annuler_->setFocus();
    nommer(annuler_, QStringLiteral("Annuler"), historique_.aAnnuler());
    nommer(retablir_, QStringLiteral("Rétablir"), historique_.aRetablir());
}

// What nobody has had the time to read is not left: by the click that takes the focus from a field first, nor by keys
// in a burst.
bool VueLivres::conclure()
{
    fiche_->conclure();
    if (lecture_.isActive())
        return false;
    echec_->montrer({});
    return true;
}

// Screen, memory and file agree afterwards, whatever came of it.
void VueLivres::tenter(const std::function<void()> &geste)
{
    QString echec;
    try {
        geste();
    } catch (const Echec &erreur) {
        echec = QStringLiteral("Modification non enregistrée : %1").arg(erreur.texte());
    }
    echec_->montrer(echec);
    if (echec.isEmpty())
        return;
    actualiser();
    lecture_.start();
}

void VueLivres::montrerLeTouche(std::optional<qint64> livre)
{
    if (livre)
        volet_->choisir(*livre);
}

void VueLivres::revenir()
{
    tenter([this] {
        if (RetourAuxValeurs::accepte(contexte_.donnees().livres, contexte_.catalogue.valeursLivrees(), this))
            historique_.revenirAuxValeursLivrees(TextesGestes::retour());
    });
}

void VueLivres::showEvent(QShowEvent *evenement)
{
    EcranDeRubrique::showEvent(evenement);
    actualiser();
}

} // namespace Quillet
