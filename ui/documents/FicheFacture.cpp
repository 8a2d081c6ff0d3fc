#include "ui/documents/FicheFacture.h"

#include "composants/Alerte.h"
#include "composants/Boutons.h"
#include "composants/Defilement.h"
#include "composants/EtatVide.h"
#include "composants/Formulaire.h"
#include "composants/Libelle.h"
#include "composants/Lien.h"
#include "composants/LigneDeTexte.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "composants/ZoneDeTexte.h"
#include "documents/AdressePostale.h"
#include "textes/TextesDocuments.h"
#include "textes/TextesExemple.h"
#include "ui/Contexte.h"
#include "ui/Raccourcis.h"
#include "ui/documents/ApercuFacture.h"
#include "ui/documents/FactureAgrandie.h"
#include "ui/documents/ImpressionFacture.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr int largeurDesChamps = 360;
const QString cleDossier = QStringLiteral("dossierDesFactures");

} // namespace

FicheFacture::FicheFacture(const Contexte &contexte, QWidget *parent)
    : QStackedWidget(parent),
      contexte_(contexte),
      emission_(contexte.preferences, contexte.factures),
      impossible_(new EtatVide),
      numero_(new LigneDeTexte),
      exemple_(new Alerte),
      remarque_(new Alerte),
      dejaPartie_(new Alerte),
      acheteur_(new ZoneDeTexte(6)),
      sansSiret_(new Alerte),
      sansAcheteur_(new Alerte),
      identite_(new Libelle({})),
      apercu_(new ApercuFacture),
      agrandie_(new FactureAgrandie),
      issue_(new Alerte(QStringLiteral("checkmark.circle"), {}, Alerte::Ton::note)),
      ouvertures_(ouvertures())
{
    addWidget(formulaire());
    addWidget(impossible_);
    addWidget(agrandie_);
    acheteur_->setPlainText(contexte.factures.acheteur());
    acheteur_->moveCursor(QTextCursor::End);
    connect(apercu_, &QAbstractButton::clicked, this, [this] {
        passerA(Page::agrandie);
        agrandie_->prendreLeFocus();
    });
    connect(agrandie_, &FactureAgrandie::quittee, this, &FicheFacture::quitterLaPage);
    connect(numero_, &QLineEdit::textChanged, this, &FicheFacture::completer);
    connect(acheteur_, &ZoneDeTexte::textChanged, this, [this] {
        contexte_.factures.noterAcheteur(acheteur_->toPlainText());
        completer();
    });
}

void FicheFacture::passerA(Page page)
{
    setCurrentIndex(static_cast<int>(page));
}

void FicheFacture::quitterLaPage()
{
    passerA(Page::formulaire);
    apercu_->setFocus();
}

QWidget *FicheFacture::formulaire()
{
    acheteur_->nettoyerLeColle(AdressePostale::sansVides);
    acheteur_->setPlaceholderText(QStringLiteral("Nom et adresse de livraison, recopiés du paiement PayPal."));
    numero_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    identite_->setWordWrap(true);
    identite_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *numero = new Formulaire::Rangee(QStringLiteral("Numéro"), numero_);
    numero->setDetail(
        QStringLiteral("Numéros suivis par vendeur et par année ; le numéro est retenu à l’impression ou à "
                       "l’enregistrement."));
    auto *facture = new Formulaire::Section(QStringLiteral("Facture"));
    facture->groupe()->ajouter(exemple_);
    facture->groupe()->ajouter(numero);
    facture->groupe()->ajouter(dejaPartie_);
    facture->groupe()->ajouter(remarque_);
    facture->groupe()->ajouter(new Formulaire::RangeeHaute(QStringLiteral("Acheteur"), acheteur_));
    facture->groupe()->ajouter(sansSiret_);
    auto *vendeur = new Formulaire::Section(QStringLiteral("Vendeur"));
    vendeur->groupe()->ajouter(identite_);

    auto *defilement = new Defilement;
    defilement->setWidget(
        Pile::enColonne({.marges = {20, 20, 20, 24}, .espace = 22}, {facture, vendeur, Pile::reste()}));
    TailleDuTexte::suivre(defilement,
                          [defilement] { defilement->setMinimumWidth(Theme::aLaTaille(largeurDesChamps)); });

    return Pile::enRangee({.espace = 0}, {{defilement, 1}, sorties()});
}

QWidget *FicheFacture::sorties()
{
    QPushButton *imprimer = Boutons::deFeuille(QStringLiteral("Imprimer %1 exemplaires").arg(Facture::exemplaires),
                                               QStringLiteral("printer"));
    QPushButton *enregistrer =
        Boutons::deFeuille(QStringLiteral("Enregistrer en PDF…"), QStringLiteral("square.and.arrow.down"));
    Boutons::rendrePrincipal(imprimer);
    Raccourcis::presser(imprimer, Raccourcis::Geste::imprimer, this); // also over the enlarged page
    Raccourcis::presser(enregistrer, Raccourcis::Geste::enregistrer, this);
    connect(imprimer, &QPushButton::clicked, this, &FicheFacture::imprimer);
    connect(enregistrer, &QPushButton::clicked, this, &FicheFacture::enregistrer);

    for (Alerte *phrase : {sansAcheteur_, issue_}) // must not widen the column
        phrase->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *defilement = new Defilement;
    defilement->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    defilement->setWidget(Pile::enColonne(
        {.marges = {4, 24, 16, 24}, .espace = 12},
        {imprimer, enregistrer, sansAcheteur_, {apercu_, 0, Qt::AlignHCenter}, issue_, ouvertures_, Pile::reste()}));
    return defilement;
}

QWidget *FicheFacture::ouvertures()
{
    const QString ailleurs = QStringLiteral("arrow.up.forward.app");
    QPushButton *pdf = Boutons::deFeuille(QStringLiteral("Ouvrir le PDF"), ailleurs);
    QPushButton *dossier = Boutons::deFeuille(QStringLiteral("Ouvrir le dossier"), ailleurs);
    connect(pdf, &QPushButton::clicked, this, [this] { Lien::ouvrirFichier(fichier_, this); });
    connect(dossier, &QPushButton::clicked, this,
            [this] { Lien::ouvrirFichier(QFileInfo(fichier_).absolutePath(), this); });
    QWidget *ouvertures = Pile::enColonne({.espace = 8}, {pdf, dossier});
    ouvertures->hide();
    return ouvertures;
}

void FicheFacture::direLIssue(const QString &issue)
{
    issue_->montrer(issue);
    ouvertures_->hide();
}

void FicheFacture::montrer(const Calcul &calcul)
{
    const auto obstacle = TextesDocuments::obstacleALaFacture(calcul, contexte_.donnees());
    if (obstacle) {
        passerA(Page::impossible);
        facture_.reset();
        impossible_->montrer(obstacle->symbole, obstacle->titre, obstacle->raison);
        return;
    }
    if (currentWidget() == impossible_)
        passerA(Page::formulaire);
    vendeur_ = *calcul.vendeurs().begin();
    const QDate jour = contexte_.jour.aujourdhui();
    if (const QString numero = emission_.numeroPour(numero_->text(), vendeur_, jour); numero != numero_->text())
        numero_->setText(numero);
    facture_ = Facture::de(calcul, contexte_.donnees().reglages, {}, jour, {});
    completer();
}

// No focus proxy: Tab would go by it to the buyer, past the number.
void FicheFacture::prendreLeFocus()
{
    acheteur_->setFocus();
}

// Brings the invoice shown up to what is typed.
void FicheFacture::completer()
{
    emission_.noter(numero_->text());
    if (!facture_)
        return;
    facture_->numero = numero_->text();
    facture_->acheteur = acheteur_->toPlainText();
    remarquerLeNumero();
    dejaPartie_->montrer(TextesDocuments::dejaPartie(contexte_.factures.partie(), facture_->numero));
    sansAcheteur_->montrer(TextesDocuments::sansAcheteur(facture_->acheteur));
    exemple_->montrer(TextesExemple::surLaFacture(contexte_.catalogue.ressources().origine()));
    identite_->setText(TextesDocuments::vendeur(facture_->vendeur));
    sansSiret_->montrer(TextesDocuments::sansSiret(facture_->vendeur));
    apercu_->montrer(*facture_);
    agrandie_->montrer(*facture_);
    direLIssue({});
}

void FicheFacture::remarquerLeNumero()
{
    const PlaceDuNumero place = emission_.place(facture_->numero, vendeur_, facture_->date);
    const QString remarque = TextesDocuments::remarqueSurLeNumero(facture_->numero, place, facture_->date);
    const bool sansProposition = facture_->numero.isEmpty() && !emission_.sansProposition().isEmpty();
    remarque_->montrer(sansProposition ? emission_.sansProposition() : remarque);
}

void FicheFacture::imprimer()
{
    if (!facture_)
        return;
    const bool joignables = ImpressionFacture::imprimantesJoignables(this, patience_);
    if (!isVisible())
        return; // the sheet was closed meanwhile
    if (!joignables) {
        if (ImpressionFacture::proposerLePdf(this))
            enregistrer();
        return;
    }
    emettre([this](const Facture &facture) {
        const auto permise = [&] { return encoreLibre(facture); };
        return ImpressionFacture::imprimer(facture, Facture::exemplaires, permise, this);
    });
}

void FicheFacture::enregistrer()
{
    const auto chemin = emettre([this](const Facture &facture) {
        const auto permise = [&] { return encoreLibre(facture); };
        return ImpressionFacture::enregistrer(facture, contexte_.preferences.texte(cleDossier), permise, this);
    });
    if (!chemin)
        return;
    try {
        contexte_.preferences.ecrire(cleDossier, QFileInfo(*chemin).absolutePath());
    } catch (const ErreurStockage &erreur) {
        prevenir(QStringLiteral("Le dossier choisi ne sera pas proposé la prochaine fois.\n%1").arg(erreur.texte()));
    }
}

std::optional<QString> FicheFacture::emettre(const Sortie &sortir)
{
    contexte_.jour.regarder(); // the invoice is of the day on which it leaves: on another, the sheet shows it anew
    if (!facture_ || !encoreLibre(*facture_))
        return std::nullopt;
    direLIssue({});
    const Facture facture = *facture_; // whatever changes while a dialog is open
    std::optional<QString> fichier;
    bool retenue = false;
    try {
        retenue = emission_.emettre(facture, vendeur_, [&](const Facture &prete) {
            fichier = sortir(prete);
            return fichier.has_value();
        });
    } catch (const Echec &echec) {
        prevenir(echec.texte());
    }
    if (retenue) {
        direLIssue(
            (fichier->isEmpty() ? QStringLiteral("Facture %1 imprimée.") : QStringLiteral("Facture %1 enregistrée."))
                .arg(facture.numero));
        if (facture_) {
            remarquerLeNumero(); // it is the last one kept now
            if (currentWidget() == agrandie_)
                quitterLaPage(); // the form says so
        }
    }
    if (fichier && !fichier->isEmpty()) { // also where the number could not be kept
        fichier_ = QFileInfo(*fichier).absoluteFilePath();
        ouvertures_->show();
    }
    return retenue ? fichier : std::nullopt;
}

// Another session may have kept its number since it was proposed.
bool FicheFacture::encoreLibre(const Facture &facture)
{
    const QString propose = facture.numero;
    if (propose.isEmpty())
        return true; // as somebody chose, or as the sheet says
    const QString numero = emission_.numeroPour(propose, vendeur_, facture.date);
    if (numero == propose)
        return true;
    numero_->setText(numero);
    prevenir(numero.isEmpty() ? emission_.sansProposition() : TextesDocuments::numeroPris(propose, numero));
    return false;
}

void FicheFacture::prevenir(const QString &message)
{
    QMessageBox::warning(this, QStringLiteral("Facture"), message);
}

} // namespace Quillet
