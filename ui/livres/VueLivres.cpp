#include "ui/livres/VueLivres.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Defilement.h"
#include "composants/EnTete.h"
#include "composants/EtatVide.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "textes/TextesBoutons.h"
#include "textes/TextesGestes.h"
#include "ui/BoutonsAnnulation.h"
#include "ui/Colonnes.h"
#include "ui/Contexte.h"
#include "ui/Raccourcis.h"
#include "ui/livres/FeuilleLivre.h"
#include "ui/livres/FeuilleNouveauLivre.h"
#include "ui/livres/FicheLivre.h"
#include "ui/livres/RetourAuxValeurs.h"
#include "ui/livres/VoletLivres.h"
#include "ui/tarifs/ChoixTarifs.h"
#include "ui/vendeurs/FeuillePremiersPas.h"

#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>

#include <algorithm>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr int largeurDuVolet = 348;
constexpr int marge = VoletLivres::margeGauche;
constexpr int largeurDePage = largeurDuVolet + Theme::largeurDePage + marge; // within its margins
constexpr auto tempsDeLecture = 1s;                                          // of a sentence that says why

} // namespace

VueLivres::VueLivres(const Contexte &contexte, QWidget *parent)
    : EcranDeRubrique(parent),
      contexte_(contexte),
      historique_(contexte.historique),
      enTete_(new EnTete(QStringLiteral("Livres"), marge)),
      choix_(new ChoixTarifs),
      volet_(new VoletLivres(contexte.catalogue, contexte.images)),
      fiche_(new FicheLivre(contexte.donnees(), contexte.images)),
      echec_(new Alerte),
      retrait_(new Alerte(QStringLiteral("info.circle"), {}, Alerte::Ton::note)),
      revenir_(Boutons::deFeuille(QStringLiteral("Revenir aux valeurs d’origine…"))),
      siens_(Boutons::deFeuille(QStringLiteral("Mettre les vôtres…"))),
      ajouter_(Boutons::deFeuille(QStringLiteral("Ajouter un livre…"), QStringLiteral("plus"))),
      lecture_(this)
{
    lecture_.setSingleShot(true);
    lecture_.setInterval(tempsDeLecture);
    auto *annulation = new BoutonsAnnulation(historique_, this);
    enTete_->ajouter(annulation);
    enTete_->ajouter(choix_);
    enTete_->setLargeur(largeurDePage - marge);
    QWidget *liste = gauche();
    // A splitter sets its own widest width.
    QWidget *colonnes = Pile::enRangee(
        {}, {Colonnes::entre(liste, droite(), liste, largeurDuVolet, QStringLiteral("livres"), contexte.preferences)});
    TailleDuTexte::suivre(colonnes, [colonnes] { colonnes->setMaximumWidth(Theme::aLaTaille(largeurDePage) + marge); });
    QBoxLayout *page = Pile::rangee({.espace = 0}, {Pile::reste(0), {colonnes, 1}, Pile::reste(0)});
    Pile::colonne(this, {.espace = 0}, {enTete_, {page, 1}});

    connect(annulation, &BoutonsAnnulation::annuler, this,
            [this] { tenter([this] { montrerLeTouche(historique_.annuler()); }); });
    connect(annulation, &BoutonsAnnulation::retablir, this,
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
    connect(&historique_, &Historique::change, this, [this] { direLeRetrait({}); });
    connect(fiche_, &FicheLivre::modifier, this, &VueLivres::modifier);
    connect(fiche_, &FicheLivre::dupliquer, this, &VueLivres::dupliquer);
    connect(fiche_, &FicheLivre::retirer, this, &VueLivres::retirer);
    connect(volet_, &VoletLivres::modifier, this, &VueLivres::modifier);
    connect(volet_, &VoletLivres::dupliquer, this, &VueLivres::dupliquer);
    connect(volet_, &VoletLivres::retirer, this, &VueLivres::retirer);
    connect(volet_, &VoletLivres::deplace, this, &VueLivres::deplacer);
    connect(fiche_, &FicheLivre::livreSuivant, volet_, &VoletLivres::passerAuSuivant);
    connect(volet_, &VoletLivres::choixChange, this, &VueLivres::actualiser);
    connect(choix_, &ChoixTarifs::choisi, this, &VueLivres::actualiser);
    connect(&contexte_.catalogue, &Catalogue::change, this, &VueLivres::actualiser);
    connect(&contexte_.jour, &JourCourant::change, this, &VueLivres::actualiser);
    connect(this, &VueLivres::mettreLesSiens, this,
            [this] { (new FeuillePremiersPas(contexte_, window()))->ouvrir(); });
    Raccourcis::lier(this, Raccourcis::Geste::chercherUnLivre, [this] { volet_->chercher(); });
    Raccourcis::lier(this, Raccourcis::Geste::ajouterUnLivre, [this] { ajouter(); });
    Raccourcis::lier(this, Raccourcis::Geste::modifierLeLivre, [this] { modifier(); });
    Raccourcis::lier(this, Raccourcis::Geste::dupliquerLeLivre, [this] { dupliquer(); });
}

QWidget *VueLivres::gauche()
{
    connect(revenir_, &QPushButton::clicked, this, &VueLivres::revenir);
    connect(siens_, &QPushButton::clicked, this, &VueLivres::mettreLesSiens);
    connect(ajouter_, &QPushButton::clicked, this, &VueLivres::ajouter);
    Raccourcis::dire(ajouter_, Raccourcis::Geste::ajouterUnLivre);
    QBoxLayout *pied = Pile::colonne({.marges = {VoletLivres::margeGauche, 10, VoletLivres::marge, 14}, .espace = 8},
                                     {siens_, revenir_, ajouter_});
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
    QPushButton *annuler = Boutons::deFeuille(QStringLiteral("Annuler"));
    connect(annuler, &QPushButton::clicked, this,
            [this] { tenter([this] { montrerLeTouche(historique_.annuler()); }); });
    bandeDuRetrait_ = Pile::enRangee({.marges = {marge, 14, marge, 0}}, {{retrait_, 1}, annuler});
    bandeDuRetrait_->hide();
    return Pile::enColonne({.espace = 0}, {echec_, bandeDuRetrait_, {place_, 1}});
}

void VueLivres::actualiser()
{
    if (!isVisible())
        return; // up to date again when it shows
    choix_->actualiser(contexte_.donnees(), contexte_.jour.aujourdhui());
    const TarifsColissimo &tarifs = choix_->tarifs();
    volet_->setTarifs(tarifs);
    enTete_->setSousTitre(TextesBoutons::bilan(contexte_.donnees().livres.size(), volet_->aReporter()));
    const bool personnelles = contexte_.donnees().personnelles;
    revenir_->setVisible(!personnelles);
    siens_->setVisible(contexte_.catalogue.ressources().origine() == Origine::exemple);
    ajouter_->setVisible(personnelles);
    fiche_->permettre(personnelles);
    const Livre *choisi = volet_->choisi();
    place_->setCurrentIndex(choisi ? 0 : 1);
    if (choisi)
        fiche_->montrer(*choisi, contexte_.donnees().boutons(*choisi, tarifs), tarifs, volet_->aUnSuivant());
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
        echec = TextesGestes::nonEnregistre(erreur);
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

void VueLivres::ajouter()
{
    const Donnees &donnees = contexte_.donnees();
    if (!donnees.personnelles)
        return;
    const Livre *choisi = volet_->choisi();
    completer(EditionLivres::nouveau(donnees.livres, choisi ? choisi->vendeur : donnees.vendeurs().value(0)));
}

void VueLivres::dupliquer()
{
    if (const Livre *choisi = volet_->choisi(); choisi && contexte_.donnees().personnelles)
        completer(EditionLivres::copie(*choisi));
}

void VueLivres::completer(const Livre &brouillon)
{
    if (!conclure())
        return;
    auto *feuille = new FeuilleNouveauLivre(contexte_, brouillon, this);
    connect(feuille, &FeuilleNouveauLivre::ajoute, this, [this](qint64 id) {
        volet_->choisir(id);
        volet_->prendreLeFocus();
    });
    feuille->ouvrir();
}

void VueLivres::modifier()
{
    const Livre *choisi = volet_->choisi();
    if (!choisi || !contexte_.donnees().personnelles || !conclure())
        return;
    auto *feuille = new FeuilleLivre(contexte_, choisi->id, volet_->ordre(), this);
    connect(feuille, &FeuilleLivre::montre, volet_, &VoletLivres::choisir);
    feuille->ouvrir();
}

void VueLivres::retirer()
{
    const Livre *choisi = volet_->choisi();
    if (!choisi || !contexte_.donnees().personnelles)
        return;
    const Livre livre = *choisi;
    tenter([&] {
        historique_.remplacer(EditionLivres::sans(contexte_.donnees().livres, livre.id), TextesGestes::retrait(livre));
        direLeRetrait(livre.titre);
    });
}

void VueLivres::deplacer(qint64 id, EditionLivres::Cote cote, qint64 voisin)
{
    if (!contexte_.donnees().personnelles)
        return;
    const QList<Livre> &livres = contexte_.donnees().livres;
    const auto livre = std::ranges::find(livres, id, &Livre::id);
    tenter(
        [&] { historique_.remplacer(EditionLivres::deplace(livres, id, cote, voisin), TextesGestes::place(*livre)); });
}

// As long as undoing would bring it back.
void VueLivres::direLeRetrait(const QString &titre)
{
    retrait_->montrer(titre.isEmpty() ? QString() : QStringLiteral("« %1 » est retiré.").arg(titre));
    bandeDuRetrait_->setVisible(!titre.isEmpty());
}

void VueLivres::showEvent(QShowEvent *evenement)
{
    EcranDeRubrique::showEvent(evenement);
    actualiser();
}

} // namespace Quillet
