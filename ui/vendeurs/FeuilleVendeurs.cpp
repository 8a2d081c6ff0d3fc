#include "ui/vendeurs/FeuilleVendeurs.h"

#include "composants/Alerte.h"
#include "composants/Attente.h"
#include "composants/Boutons.h"
#include "composants/ChampDeFiche.h"
#include "composants/Defilement.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "model/Couvertures.h"
#include "model/EditionReglages.h"
#include "textes/TextesGestes.h"
#include "textes/TextesReglages.h"
#include "ui/AlerteRelecture.h"
#include "ui/BoutonsAnnulation.h"
#include "ui/Contexte.h"
#include "ui/vendeurs/FeuillePremiersPas.h"
#include "ui/vendeurs/FicheEmballages.h"
#include "ui/vendeurs/FicheMentions.h"
#include "ui/vendeurs/FicheVendeur.h"
#include "ui/vendeurs/SaisiesGardees.h"

#include <QPushButton>

#include <utility>

namespace Quillet {

namespace {

const QString titre = QStringLiteral("Vendeurs et emballages");
constexpr QSize taille(760, 760);
constexpr QSize petite(560, 320);

QList<CodeDestination> codes(const Donnees &donnees)
{
    QList<CodeDestination> codes;
    for (const Destination &destination : donnees.destinations)
        codes.append(destination.code);
    return codes;
}

} // namespace

void FeuilleVendeurs::ouvrir(const Contexte &contexte, QWidget *parent)
{
    if (contexte.catalogue.ressources().origine() == Origine::exemple)
        (new FeuillePremiersPas(contexte, parent))->ouvrir();
    else
        (new FeuilleVendeurs(contexte, parent))->Feuille::ouvrir();
}

FeuilleVendeurs::FeuilleVendeurs(const Contexte &contexte, QWidget *parent)
    : Feuille(titre, parent), contexte_(contexte), echec_(new AlerteRelecture(contexte.catalogue))
{
    auto *tete = new Libelle(titre);
    tete->setFont(Theme::titreSection());
    if (!contexte.donnees().personnelles) {
        meubler(tete, chezUnAutre());
        prendreLaTaille(petite);
        return;
    }
    auto *annulation = new BoutonsAnnulation(contexte.historique, this);
    connect(annulation, &BoutonsAnnulation::annuler, this,
            [this] { tenter([this] { contexte_.historique.annuler(); }); });
    connect(annulation, &BoutonsAnnulation::retablir, this,
            [this] { tenter([this] { contexte_.historique.retablir(); }); });
    meubler(Pile::enRangee({.espace = 12}, {tete, annulation}), page());
    connect(&contexte.catalogue, &Catalogue::change, this, &FeuilleVendeurs::montrer);
    connect(echec_, &AlerteRelecture::vaRelire, this, [this] { avantRelecture_ = commence(); });
    SaisiesGardees::suivre(echec_, this, [this] { return nouveau_ ? QStringList() : avantRelecture_; });
    montrer();
    prendreLaTaille(taille);
    vendeurs_.first().fiche->prendreLeFocus();
}

QWidget *FeuilleVendeurs::page()
{
    const EcritureDesReglages ecriture{[this]() -> const Reglages & { return montres(); },
                                       [this](const Reglages &apres, const QString &chemin, const QString &geste) {
                                           return ecrire(apres, chemin, geste);
                                       }};
    QList<QWidget *> fiches;
    liste_ = Pile::enColonne({.espace = 22}, {});
    for (const Vendeur vendeur : tous<Vendeur>) {
        auto *fiche = new FicheVendeur(TextesReglages::titre(vendeur), vendeur, ecriture);
        QPushButton *retire = Boutons::deFeuille(QStringLiteral("Retirer ce vendeur"));
        auto *refus = new Alerte;
        auto *attente =
            Libelle::note(QStringLiteral("Ce vendeur sera enregistré dès qu’il aura un nom et une adresse."));
        connect(retire, &QPushButton::clicked, this, [this, vendeur] { retirer(vendeur); });
        QWidget *ensemble = Pile::enColonne({.espace = 8}, {fiche, attente, {retire, 0, Qt::AlignLeft}, refus});
        liste_->layout()->addWidget(ensemble);
        vendeurs_.insert(vendeur, {fiche, retire, ensemble, refus, attente});
    }
    ajouter_ = Boutons::deFeuille(QStringLiteral("Ajouter un second vendeur"), QStringLiteral("plus"));
    connect(ajouter_, &QPushButton::clicked, this, &FeuilleVendeurs::ajouterUnVendeur);
    emballages_ = new FicheEmballages(ecriture);
    mentions_ = new FicheMentions(ecriture);

    auto *defilement = new Defilement;
    defilement->setWidget(
        Pile::enColonne({.marges = {20, 20, 20, 24}, .espace = 22},
                        {liste_, {ajouter_, 0, Qt::AlignLeft}, emballages_, mentions_, Pile::reste()}));
    echec_->setContentsMargins(20, 12, 20, 12);
    return Pile::enColonne({.espace = 0}, {echec_, {defilement, 1}});
}

QWidget *FeuilleVendeurs::chezUnAutre()
{
    auto *ou = new Libelle(TextesReglages::chezUnAutre(contexte_.catalogue.ressources().dossier().path()));
    ou->setWordWrap(true);
    ou->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton *reprendre = Boutons::deFeuille(QStringLiteral("Les reprendre chez moi"));
    Boutons::rendrePrincipal(reprendre);
    connect(reprendre, &QPushButton::clicked, this, &FeuilleVendeurs::reprendreLesDonnees);
    return Pile::enColonne({.marges = {24, 24, 24, 24}, .espace = 16},
                           {ou, echec_, {reprendre, 0, Qt::AlignLeft}, Pile::reste()});
}

void FeuilleVendeurs::reprendreLesDonnees()
{
    tenter([this] {
        // Copies: the window goes on, and may read the data anew.
        Attente::jusquAuBout(this, QStringLiteral("Copie de vos données…"),
                             [la = contexte_.catalogue.stockage().donneesPersonnelles(),
                              ressources = contexte_.catalogue.ressources(), donnees = contexte_.donnees()] {
                                 const QDir couvertures(ressources.chemin(QStringLiteral("couvertures")));
                                 DossierPersonnel::creer(la, ressources, donnees.reglages, donnees.livres,
                                                         Couvertures::contenus(couvertures, donnees.livres));
                             });
        contexte_.catalogue.recharger();
        accept();
        ouvrir(contexte_, parentWidget());
    });
}

void FeuilleVendeurs::montrer()
{
    const Donnees &donnees = contexte_.donnees();
    if (!donnees.personnelles) {
        reject(); // they went, and so did what is shown here
        return;
    }
    if (nouveau_ && donnees.reglages.identite(nouveau_->vendeur))
        nouveau_.reset(); // there already, by another
    const Reglages reglages = montres();
    for (auto vendeur = vendeurs_.begin(); vendeur != vendeurs_.end(); ++vendeur) {
        const Fiche &fiche = vendeur.value();
        const bool la = reglages.identite(vendeur.key()).has_value();
        if (!la && fiche.ensemble->isAncestorOf(focusWidget()))
            setFocus();
        fiche.ensemble->setVisible(la);
        fiche.fiche->montrer();
        fiche.retirer->setVisible(reglages.vendeurs.size() > 1);
        fiche.attente->setVisible(nouveau_ && nouveau_->vendeur == vendeur.key());
        if (TextesReglages::nePeutPartir(vendeur.key(), donnees).isEmpty())
            fiche.refus->montrer({});
    }
    ajouter_->setVisible(reglages.vendeurs.size() < qsizetype(tous<Vendeur>.size()));
    emballages_->montrer();
    mentions_->montrer(TextesReglages::destinationsADeclarer(donnees));
}

void FeuilleVendeurs::ajouterUnVendeur()
{
    const Reglages &avant = contexte_.donnees().reglages;
    for (const Vendeur vendeur : tous<Vendeur>) {
        if (avant.identite(vendeur))
            continue;
        nouveau_ = {vendeur, EditionReglages::avecVendeur(avant, vendeur).vendeurs.value(vendeur)};
        montrer();
        vendeurs_[vendeur].fiche->prendreLeFocus();
        return;
    }
}

void FeuilleVendeurs::retirer(Vendeur vendeur)
{
    if (nouveau_ && nouveau_->vendeur == vendeur) {
        nouveau_.reset();
        montrer();
        return;
    }
    const QString refus = TextesReglages::nePeutPartir(vendeur, contexte_.donnees());
    vendeurs_[vendeur].refus->montrer(refus);
    if (!refus.isEmpty())
        return;
    Reglages apres = contexte_.donnees().reglages;
    const QString nom = apres.vendeurs.take(vendeur).nom;
    tenter([&] { contexte_.historique.remplacer(apres, QStringLiteral("retrait de « %1 »").arg(nom)); });
}

// What the fields show.
const Reglages &FeuilleVendeurs::montres()
{
    montres_ = contexte_.donnees().reglages;
    if (nouveau_)
        montres_.vendeurs.insert(nouveau_->vendeur, nouveau_->identite);
    return montres_;
}

// What a rule is against stays in its field and goes nowhere.
QString FeuilleVendeurs::ecrire(const Reglages &apres, const QString &chemin, const QString &geste)
{
    if (!tentes_.contains(apres)) { // else a field that was refused is only left again
        averti_ = false;
        tentes_.append(apres);
    }
    const Donnees &donnees = contexte_.donnees();
    const QString objection = Objections::nouvelle(Objections::surLesReglages(montres(), codes(donnees)),
                                                   Objections::surLesReglages(apres, codes(donnees)), chemin);
    if (!objection.isEmpty())
        return objection;
    const auto avant = nouveau_;
    Reglages aGarder = apres;
    if (nouveau_) {
        nouveau_->identite = aGarder.vendeurs.value(nouveau_->vendeur);
        if (nouveau_->identite.nom.isEmpty() || nouveau_->identite.adresse.isEmpty())
            aGarder.vendeurs.remove(nouveau_->vendeur);
        else
            nouveau_.reset();
    }
    QString echec;
    echec_->montrer({});
    try {
        if (avant.has_value() != nouveau_.has_value())
            contexte_.historique.remplacer(aGarder, QStringLiteral("ajout d’un vendeur"));
        else if (!avant || aGarder != donnees.reglages)
            contexte_.historique.remplacer(aGarder, geste);
    } catch (const Echec &erreur) {
        nouveau_ = avant;
        echec = TextesGestes::nonEnregistre(erreur);
        if (dynamic_cast<const DonneesChangees *>(&erreur))
            echec_->montrer(erreur);
    }
    if (echec.isEmpty())
        tentes_.clear();
    return echec;
}

// The first field with what is not kept; null when all is.
QWidget *FeuilleVendeurs::enSuspens()
{
    for (auto vendeur = vendeurs_.begin(); vendeur != vendeurs_.end(); ++vendeur)
        if (QWidget *champ = vendeur->fiche->enSuspens())
            return champ;
    if (QWidget *champ = emballages_->enSuspens())
        return champ;
    if (QWidget *champ = mentions_->enSuspens())
        return champ;
    if (commence().isEmpty())
        return nullptr;
    return vendeurs_[nouveau_->vendeur].fiche->objecter(
        Objections::surLesReglages(montres(), codes(contexte_.donnees())));
}

// What to call a new seller of whom something was typed; nothing when there is none.
QStringList FeuilleVendeurs::commence() const
{
    if (!nouveau_)
        return {};
    const auto &[vendeur, identite] = *nouveau_;
    if (identite == EditionReglages::avecVendeur(contexte_.donnees().reglages, vendeur).vendeurs.value(vendeur))
        return {};
    return {identite.nom.isEmpty() ? TextesReglages::titre(vendeur) : identite.nom};
}

void FeuilleVendeurs::reject()
{
    if (!contexte_.donnees().personnelles || vendeurs_.isEmpty()) {
        Feuille::reject();
        return;
    }
    const bool averti = averti_; // what is handed over again below is nothing new
    for (const Fiche &fiche : std::as_const(vendeurs_))
        fiche.fiche->conclure();
    emballages_->conclure();
    mentions_->conclure();
    QWidget *champ = enSuspens();
    if (!champ || averti) {
        Feuille::reject();
        return;
    }
    averti_ = true;
    echec_->montrer(QStringLiteral("Ce que vous venez de saisir n’est pas encore enregistré : voyez ce qui manque, ou "
                                   "fermez encore une fois pour y renoncer."));
    champ->setFocus();
}

void FeuilleVendeurs::tenter(const std::function<void()> &geste)
{
    echec_->montrer({});
    try {
        geste();
    } catch (const Echec &erreur) {
        echec_->montrer(erreur);
    }
}

} // namespace Quillet
