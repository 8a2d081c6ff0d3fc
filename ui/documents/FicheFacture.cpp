#include "ui/documents/FicheFacture.h"

#include "documents/Facture.h"
#include "documents/ReponseType.h"
#include "model/Catalogue.h"
#include "ui/commun/Alerte.h"
#include "ui/commun/Defilement.h"
#include "ui/commun/EtatVide.h"
#include "ui/commun/Formulaire.h"
#include "ui/commun/Icone.h"
#include "ui/commun/Libelle.h"
#include "ui/commun/ZoneDeTexte.h"
#include "ui/documents/ApercuFacture.h"
#include "ui/documents/ImpressionFacture.h"
#include "ui/documents/TextesDocuments.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

enum Page { formulaireDeFacture, factureImpossible, portInconnu };

constexpr int largeurDesChamps = 360;
constexpr int exemplaires = 2; // the customs pouch asks for two
const QString cleDossier = QStringLiteral("dossierDesFactures");
const QString triangle = QStringLiteral("exclamationmark.triangle");

QPushButton *bouton(const QString &symbole, const QString &texte)
{
    auto *bouton = new QPushButton(Icone::icone(symbole), texte);
    bouton->setAutoDefault(false);
    return bouton;
}

} // namespace

FicheFacture::FicheFacture(const Catalogue &catalogue, const Commande &commande, const Preferences &preferences,
                           Aujourdhui aujourdhui, QWidget *parent)
    : QStackedWidget(parent),
      catalogue_(catalogue),
      commande_(commande),
      preferences_(preferences),
      numerotation_{preferences},
      aujourdhui_(std::move(aujourdhui)),
      impossible_(new EtatVide(QStringLiteral("person.2"), tr("Facture impossible"), {})),
      numero_(new QLineEdit(numerotation_.prochain(commande.vendeur(), aujourdhui_()))),
      remarque_(new Alerte(triangle, {})),
      acheteur_(new ZoneDeTexte(6)),
      sansSiret_(new Alerte(triangle, {})),
      vendeur_(new Libelle({})),
      apercu_(new ApercuFacture),
      issue_(new Alerte(QStringLiteral("checkmark.circle"), {}, Alerte::Ton::note))
{
    addWidget(formulaire());
    addWidget(impossible_);
    addWidget(new EtatVide(QStringLiteral("doc.plaintext"), {},
                           tr("Le port n’est pas encore connu : la facture apparaîtra avec lui.")));

    connect(numero_, &QLineEdit::textChanged, this, &FicheFacture::actualiser);
    connect(acheteur_, &ZoneDeTexte::textChanged, this, &FicheFacture::actualiser);
    connect(&commande_, &Commande::change, this, &FicheFacture::actualiser);
    connect(&catalogue_, &Catalogue::change, this, &FicheFacture::actualiser);
    actualiser();
}

QWidget *FicheFacture::formulaire()
{
    acheteur_->setPlaceholderText(tr("Nom et adresse de livraison, recopiés du paiement PayPal."));
    numero_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    vendeur_->setWordWrap(true);
    vendeur_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *numero = new Formulaire::Rangee(tr("Numéro"), numero_);
    numero->setDetail(tr("Numéros suivis par vendeur et par année ; le numéro est retenu à l’impression ou à "
                         "l’enregistrement."));
    auto *facture = new Formulaire::Section(tr("Facture"));
    facture->groupe()->ajouter(numero);
    facture->groupe()->ajouter(remarque_);
    facture->groupe()->ajouter(new Formulaire::RangeeHaute(tr("Acheteur"), acheteur_));
    facture->groupe()->ajouter(sansSiret_);
    auto *vendeur = new Formulaire::Section(tr("Vendeur"));
    vendeur->groupe()->ajouter(vendeur_);

    auto *champs = new QWidget;
    auto *colonne = new QVBoxLayout(champs);
    colonne->setContentsMargins(20, 20, 20, 24);
    colonne->setSpacing(22);
    colonne->addWidget(facture);
    colonne->addWidget(vendeur);
    colonne->addStretch(1);
    auto *defilement = new Defilement;
    defilement->setWidget(champs);
    defilement->setMinimumWidth(largeurDesChamps);

    auto *page = new QWidget;
    auto *cotes = new QHBoxLayout(page);
    cotes->setContentsMargins(0, 0, 0, 0);
    cotes->setSpacing(0);
    cotes->addWidget(defilement, 1);
    cotes->addWidget(papier());
    return page;
}

QWidget *FicheFacture::papier()
{
    auto *imprimer = bouton(QStringLiteral("printer"), tr("Imprimer %1 exemplaires").arg(exemplaires));
    auto *enregistrer = bouton(QStringLiteral("square.and.arrow.down"), tr("Enregistrer en PDF…"));
    connect(imprimer, &QPushButton::clicked, this, &FicheFacture::imprimer);
    connect(enregistrer, &QPushButton::clicked, this, &FicheFacture::enregistrer);

    auto *papier = new QWidget;
    auto *colonne = new QVBoxLayout(papier);
    colonne->setContentsMargins(4, 24, 20, 24);
    colonne->setSpacing(12);
    colonne->addWidget(imprimer);
    colonne->addWidget(enregistrer);
    colonne->addWidget(apercu_, 0, Qt::AlignHCenter);
    colonne->addWidget(issue_);
    colonne->addStretch(1);
    return papier;
}

std::optional<Facture> FicheFacture::facture() const
{
    const QDate jour = aujourdhui_();
    return ::facture(Calcul(catalogue_, commande_, jour), catalogue_.reglages(), numero_->text(), jour,
                     acheteur_->toPlainText());
}

void FicheFacture::actualiser()
{
    const Calcul calcul(catalogue_, commande_, aujourdhui_());
    const QString obstacle = TextesDocuments::obstacleALaFacture(calcul, catalogue_.reglages());
    impossible_->setRaison(obstacle);
    const auto aImprimer = facture();
    setCurrentIndex(!obstacle.isEmpty() ? factureImpossible : aImprimer ? formulaireDeFacture : portInconnu);
    remarque_->montrer(TextesDocuments::remarqueSurLeNumero(numero_->text(), aujourdhui_()));
    issue_->montrer({});
    if (!aImprimer)
        return;
    montrerLeVendeur(aImprimer->vendeur);
    apercu_->montrer(*aImprimer);
}

void FicheFacture::montrerLeVendeur(const IdentiteVendeur &vendeur)
{
    QStringList lignes{vendeur.nom};
    lignes += vendeur.adresse;
    if (vendeur.siret)
        lignes.append(QStringLiteral("SIRET ") + *vendeur.siret);
    lignes.append(vendeur.mentionTva);
    vendeur_->setText(lignes.join(u'\n'));
    sansSiret_->montrer(
        vendeur.siret ? QString() : tr("Numéro SIRET manquant : obligatoire sur la facture d’une micro-entreprise."));
}

void FicheFacture::imprimer()
{
    const auto aImprimer = facture();
    issue_->montrer({});
    try {
        if (!aImprimer || !ImpressionFacture::imprimer(*aImprimer, exemplaires, this))
            return;
        retenir(aImprimer->numero);
        issue_->montrer(tr("Facture %1 confiée à l’imprimante.").arg(aImprimer->numero));
    } catch (const Echec &echec) {
        QMessageBox::warning(this, tr("Facture"), echec.texte());
    }
}

void FicheFacture::enregistrer()
{
    const auto aEnregistrer = facture();
    if (!aEnregistrer)
        return;
    issue_->montrer({});
    try {
        const auto chemin = ImpressionFacture::enregistrer(*aEnregistrer, preferences_.texte(cleDossier), this);
        if (!chemin)
            return;
        retenir(aEnregistrer->numero);
        issue_->montrer(tr("Facture %1 enregistrée.").arg(aEnregistrer->numero));
        preferences_.ecrire(cleDossier, QFileInfo(*chemin).absolutePath());
    } catch (const Echec &echec) {
        QMessageBox::warning(this, tr("Facture"), echec.texte());
    }
}

void FicheFacture::retenir(const QString &numero)
{
    try {
        numerotation_.retenir(numero, commande_.vendeur());
    } catch (const ErreurStockage &erreur) {
        throw ErreurStockage(
            tr("La facture %1 est partie, mais son numéro n’a pas été retenu.\n%2").arg(numero, erreur.texte()));
    }
}
