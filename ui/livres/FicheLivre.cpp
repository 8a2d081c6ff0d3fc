#include "ui/livres/FicheLivre.h"

#include "composants/Boutons.h"
#include "composants/ChampSaisi.h"
#include "composants/Formulaire.h"
#include "composants/Interrupteur.h"
#include "composants/Libelle.h"
#include "composants/Lien.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "model/Donnees.h"
#include "model/Saisie.h"
#include "model/controle/Objections.h"
#include "textes/TextesGestes.h"
#include "textes/TextesLivres.h"
#include "ui/Raccourcis.h"
#include "ui/couvertures/DessinCouverture.h"
#include "ui/couvertures/ImagesCouvertures.h"
#include "ui/livres/TableauBoutons.h"

#include <QPainter>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr QSize couverture(112, 168);
constexpr int entreSections = 28;

Libelle *ligneDiscrete()
{
    auto *ligne = new Libelle({}, Libelle::Rang::secondaire);
    ligne->setFont(Theme::encadre());
    ligne->setWordWrap(true);
    return ligne;
}

} // namespace

// The cover, in grey when the book is sold out.
class FicheLivre::Image : public QWidget
{
public:
    explicit Image(ImagesCouvertures &images) : images_(images)
    {
        setFixedSize(couverture);
        connect(&images, &ImagesCouvertures::prete, this, qOverload<>(&QWidget::update));
    }

    void montrer(const Livre &livre)
    {
        livre_ = livre;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        if (!livre_.disponible)
            peintre.setOpacity(DessinCouverture::opaciteIndisponible);
        peintre.drawPixmap(0, 0, DessinCouverture::dessin(livre_, size(), size(), devicePixelRatioF(), images_));
    }

private:
    ImagesCouvertures &images_;
    Livre livre_;
};

FicheLivre::FicheLivre(const Donnees &donnees, ImagesCouvertures &images, QWidget *parent)
    : QWidget(parent),
      donnees_(donnees),
      titre_(new Libelle({})),
      auteur_(ligneDiscrete()),
      fabrication_(ligneDiscrete()),
      disponible_(new Interrupteur),
      situation_(new Libelle({})),
      page_(Boutons::deFeuille(QStringLiteral("Ouvrir la page PayPal"), QStringLiteral("arrow.up.forward.app"))),
      toutReporter_(Boutons::deFeuille(QStringLiteral("Tout reporter"))),
      suivant_(Boutons::deFeuille(QStringLiteral("Livre suivant à reporter"), QStringLiteral("arrow.right"))),
      tableau_(new TableauBoutons)
{
    Pile::colonne(this, {.espace = entreSections}, {enTete(images), boutonsPaypal(), Pile::reste()});
}

QWidget *FicheLivre::enTete(ImagesCouvertures &images)
{
    image_ = new Image(images);
    titre_->setFont(Theme::titreSection());
    titre_->setWordWrap(true);
    QBoxLayout *textes = Pile::colonne({.espace = 2}, {titre_, auteur_, fabrication_, Pile::blanc(14), reglages(),
                                                       Pile::blanc(10), commandes(), Pile::reste()});
    return Pile::enRangee({.espace = 24}, {{image_, 0, Qt::AlignTop}, {textes, 1}});
}

QWidget *FicheLivre::reglages()
{
    const auto refuser = [this](const auto &lecture, auto Livre::*champ, const QString &cle) {
        if (const auto *refus = std::get_if<Saisie::Refus>(&lecture))
            return refus->raison;
        Livre essai = livre_;
        essai.*champ = std::get<std::remove_reference_t<decltype(essai.*champ)>>(lecture);
        return objection(essai, cle);
    };
    prix_ = new ChampSaisi(
        QStringLiteral("Prix"), {QStringLiteral("€"), QStringLiteral("euros")},
        [refuser](const QString &texte) { return refuser(Saisie::prix(texte), &Livre::prix, QStringLiteral("prix")); });
    poids_ = new ChampSaisi(QStringLiteral("Poids"), {QStringLiteral("g"), QStringLiteral("grammes")},
                            [refuser](const QString &texte) {
                                return refuser(Saisie::poids(texte), &Livre::poids, QStringLiteral("poids"));
                            });
    poids_->setInvite(QStringLiteral("à peser"));
    for (const ChampSaisi *champ : {prix_, poids_})
        connect(champ, &ChampSaisi::refuse, this, &FicheLivre::saisieRefusee);
    connect(prix_, &ChampSaisi::saisi, this, [this](const QString &texte) {
        Livre livre = livre_;
        livre.prix = std::get<Centimes>(Saisie::prix(texte));
        emit modification(livre, TextesGestes::prix(livre));
    });
    connect(poids_, &ChampSaisi::saisi, this, [this](const QString &texte) {
        Livre livre = livre_;
        livre.poids = std::get<std::optional<Grammes>>(Saisie::poids(texte));
        emit modification(livre, TextesGestes::poids(livre));
    });
    // Not clicked: a screen reader toggles without it.
    connect(disponible_, &QCheckBox::toggled, this, [this](bool disponible) {
        if (disponible == livre_.disponible)
            return;
        Livre livre = livre_;
        livre.disponible = disponible;
        emit modification(livre, TextesGestes::disponibilite(livre));
    });
    auto *groupe = new Formulaire::Groupe;
    groupe->ajouter(prix_);
    groupe->ajouter(poids_);
    groupe->ajouter(new Formulaire::Rangee(QStringLiteral("Disponible"), disponible_));
    return groupe;
}

QString FicheLivre::objection(const Livre &essai, const QString &champ) const
{
    if (!donnees_.personnelles)
        return {};
    const Regles::Reperes reperes{.vendeurs = donnees_.reglages.vendeurs};
    return Objections::surLeLivre(essai, reperes).value(champ);
}

QWidget *FicheLivre::commandes()
{
    const auto bouton = [this](const QString &texte, Raccourcis::Geste geste, void (FicheLivre::*signal)()) {
        QPushButton *cree = Boutons::deFeuille(texte);
        Raccourcis::dire(cree, geste);
        connect(cree, &QPushButton::clicked, this, signal);
        return cree;
    };
    commandes_ = Pile::enRangee(
        {},
        {bouton(QStringLiteral("Modifier…"), Raccourcis::Geste::modifierLeLivre, &FicheLivre::modifier),
         bouton(QStringLiteral("Dupliquer…"), Raccourcis::Geste::dupliquerLeLivre, &FicheLivre::dupliquer),
         bouton(QStringLiteral("Retirer"), Raccourcis::Geste::retirerLeLivre, &FicheLivre::retirer), Pile::reste()});
    return commandes_;
}

QWidget *FicheLivre::boutonsPaypal()
{
    Libelle *titre = Libelle::titreDeSection(QStringLiteral("Boutons PayPal"));
    Libelle *note =
        Libelle::note(QStringLiteral("Le livre envoyé seul, dans l’emballage habituel. Frais PayPal non compris."));
    situation_->setWordWrap(true);
    connect(page_, &QPushButton::clicked, this, [this] { Lien::ouvrir(*livre_.lienPaypal, this); });
    toutReporter_->setFocusPolicy(Qt::TabFocus); // as the rows' own buttons
    connect(toutReporter_, &QPushButton::clicked, this,
            [this] { emit reporter(livre_, PrixBouton::aReporter(boutons_)); });
    connect(suivant_, &QPushButton::clicked, this, &FicheLivre::livreSuivant);
    connect(tableau_, &TableauBoutons::reporter, this, [this](int rang) { emit reporter(livre_, {boutons_[rang]}); });
    connect(tableau_, &TableauBoutons::garder, this, [this](int rang) { emit garder(livre_, boutons_[rang]); });
    connect(tableau_, &TableauBoutons::termine, this, [this] {
        if (suivant_->isVisible())
            suivant_->setFocus();
    });

    QBoxLayout *tete = Pile::rangee({}, {{titre, 1}, page_});
    QBoxLayout *etat = Pile::rangee({}, {{situation_, 1}, toutReporter_, suivant_});
    return Pile::enColonne({.espace = 10}, {tete, etat, tableau_, note});
}

void FicheLivre::montrer(const Livre &livre, const QList<PrixBouton> &boutons, const TarifsColissimo &tarifs,
                         bool suivant)
{
    const bool unAutre = livre.id != livre_.id;
    livre_ = livre;
    boutons_ = boutons;
    image_->montrer(livre);
    titre_->setText(livre.titreComplet);
    auteur_->setText(TextesLivres::origine(livre, donnees_));
    fabrication_->setText(TextesLivres::edition(livre));
    prix_->montrer(Saisie::ecrit(livre.prix));
    poids_->montrer(Saisie::ecrit(livre.poids));
    if (unAutre) {
        prix_->oublier();
        poids_->oublier();
    }
    disponible_->setChecked(livre.disponible);
    page_->setVisible(livre.lienPaypal.has_value());

    const qsizetype enAttente = PrixBouton::aReporter(boutons).size();
    situation_->setText(TextesBoutons::situation(livre, enAttente));
    suivant_->setVisible(enAttente == 0 && suivant); // before the table hands it the focus
    tableau_->montrer(TextesBoutons::lignes(boutons, livre, tarifs));
    toutReporter_->setVisible(enAttente > 0);
}

void FicheLivre::conclure()
{
    prix_->conclure();
    poids_->conclure();
}

} // namespace Quillet
