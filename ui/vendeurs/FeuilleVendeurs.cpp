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
#include "ui/BoutonsAnnulation.h"
#include "ui/Contexte.h"
#include "ui/vendeurs/FeuillePremiersPas.h"
#include "ui/vendeurs/FicheEmballages.h"
#include "ui/vendeurs/FicheMentions.h"
#include "ui/vendeurs/FicheVendeur.h"

#include <QPushButton>

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
    : Feuille(titre, parent), contexte_(contexte), echec_(new Alerte)
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
    montrer();
    prendreLaTaille(taille);
    vendeurs_.first().fiche->prendreLeFocus();
}

QWidget *FeuilleVendeurs::page()
{
    const EcritureDesReglages ecriture{[this]() -> const Reglages & { return contexte_.donnees().reglages; },
                                       [this](const Reglages &apres, const QString &chemin, const QString &geste) {
                                           return ecrire(apres, chemin, geste);
                                       }};
    QList<QWidget *> fiches;
    liste_ = Pile::enColonne({.espace = 22}, {});
    for (const Vendeur vendeur : tous<Vendeur>) {
        auto *fiche = new FicheVendeur(TextesReglages::titre(vendeur), vendeur, ecriture);
        QPushButton *retire = Boutons::deFeuille(QStringLiteral("Retirer ce vendeur"));
        auto *refus = new Alerte;
        connect(retire, &QPushButton::clicked, this, [this, vendeur] { retirer(vendeur); });
        QWidget *ensemble = Pile::enColonne({.espace = 8}, {fiche, {retire, 0, Qt::AlignLeft}, refus});
        liste_->layout()->addWidget(ensemble);
        vendeurs_.insert(vendeur, {fiche, retire, ensemble, refus});
    }
    ajouter_ = Boutons::deFeuille(QStringLiteral("Ajouter un second vendeur"), QStringLiteral("plus"));
    connect(ajouter_, &QPushButton::clicked, this, &FeuilleVendeurs::ajouterUnVendeur);
    emballages_ = new FicheEmballages(ecriture);
    mentions_ = new FicheMentions(ecriture);

    auto *defilement = new Defilement;
    defilement->setWidget(
        Pile::enColonne({.marges = {20, 20, 20, 24}, .espace = 22},
                        {liste_, {ajouter_, 0, Qt::AlignLeft}, emballages_, mentions_, Pile::reste()}));
    echec_->setContentsMargins(20, 12, 20, 0);
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
    for (auto vendeur = vendeurs_.begin(); vendeur != vendeurs_.end(); ++vendeur) {
        const Fiche &fiche = vendeur.value();
        const bool la = donnees.reglages.identite(vendeur.key()).has_value();
        if (!la && fiche.ensemble->isAncestorOf(focusWidget()))
            setFocus();
        fiche.ensemble->setVisible(la);
        fiche.fiche->montrer();
        fiche.retirer->setVisible(donnees.reglages.vendeurs.size() > 1);
        if (TextesReglages::nePeutPartir(vendeur.key(), donnees).isEmpty())
            fiche.refus->montrer({});
    }
    ajouter_->setVisible(donnees.reglages.vendeurs.size() < qsizetype(tous<Vendeur>.size()));
    emballages_->montrer();
    mentions_->montrer(TextesReglages::destinationsADeclarer(donnees));
}

void FeuilleVendeurs::ajouterUnVendeur()
{
    const Reglages &avant = contexte_.donnees().reglages;
    for (const Vendeur vendeur : tous<Vendeur>) {
        if (avant.identite(vendeur))
            continue;
        const Reglages apres = EditionReglages::avecVendeur(avant, vendeur);
        tenter([&] { contexte_.historique.remplacer(apres, QStringLiteral("ajout d’un vendeur")); });
        vendeurs_[vendeur].fiche->prendreLeFocus();
        return;
    }
}

void FeuilleVendeurs::retirer(Vendeur vendeur)
{
    const QString refus = TextesReglages::nePeutPartir(vendeur, contexte_.donnees());
    vendeurs_[vendeur].refus->montrer(refus);
    if (!refus.isEmpty())
        return;
    Reglages apres = contexte_.donnees().reglages;
    const QString nom = apres.vendeurs.take(vendeur).nom;
    tenter([&] { contexte_.historique.remplacer(apres, QStringLiteral("retrait de « %1 »").arg(nom)); });
}

// What a rule is against stays in its field and goes nowhere.
QString FeuilleVendeurs::ecrire(const Reglages &apres, const QString &chemin, const QString &geste)
{
    const Donnees &donnees = contexte_.donnees();
    const QString objection = Objections::nouvelle(Objections::surLesReglages(donnees.reglages, codes(donnees)),
                                                   Objections::surLesReglages(apres, codes(donnees)), chemin);
    if (!objection.isEmpty())
        return objection;
    QString echec;
    try {
        contexte_.historique.remplacer(apres, geste);
    } catch (const Echec &erreur) {
        echec = TextesGestes::nonEnregistre(erreur);
    }
    echec_->montrer({});
    return echec;
}

void FeuilleVendeurs::tenter(const std::function<void()> &geste)
{
    QString echec;
    try {
        geste();
    } catch (const Echec &erreur) {
        echec = TextesGestes::nonEnregistre(erreur);
    }
    echec_->montrer(echec);
}

} // namespace Quillet
