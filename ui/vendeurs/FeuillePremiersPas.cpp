#include "ui/vendeurs/FeuillePremiersPas.h"

#include "composants/Boutons.h"
#include "composants/ChampDeFiche.h"
#include "composants/Defilement.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "documents/NumerotationFactures.h"
#include "echanges/DepotCouvertures.h"
#include "model/EditionLivres.h"
#include "model/EditionReglages.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesDonnees.h"
#include "textes/TextesReglages.h"
#include "ui/AlerteRelecture.h"
#include "ui/Contexte.h"
#include "ui/livres/FormulaireLivre.h"
#include "ui/vendeurs/FicheEmballages.h"
#include "ui/vendeurs/PasDuVendeur.h"

#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>

namespace Quillet {

namespace {

const QString titre = QStringLiteral("Premiers pas");
constexpr QSize taille(760, 760);

// What cannot be read is said with the invoices; to leave its field empty changes nothing.
QMap<Vendeur, QString> dernieresFactures(const Preferences &preferences)
{
    QMap<Vendeur, QString> factures;
    for (const Vendeur vendeur : tous<Vendeur>)
        try {
            factures.insert(vendeur, NumerotationFactures{preferences}.dernier(vendeur));
        } catch (const ErreurStockage &) {
            factures.remove(vendeur);
        }
    return factures;
}

} // namespace

FeuillePremiersPas::FeuillePremiersPas(const Contexte &contexte, QWidget *parent)
    : Feuille(titre, parent),
      contexte_(contexte),
      brouillon_(EditionReglages::premiers(contexte.donnees().reglages)),
      premier_(EditionLivres::nouveau({}, tous<Vendeur>.front())),
      pages_(new QStackedWidget),
      titre_(new Libelle({})),
      livre_(new FormulaireLivre(contexte.images)),
      echec_(new AlerteRelecture(contexte.catalogue)),
      precedent_(Boutons::deFeuille(QStringLiteral("Précédent"))),
      plusTard_(Boutons::deFeuille(QStringLiteral("Plus tard"))),
      suivant_(Boutons::deFeuille({}))
{
    const EcritureDesReglages ecriture{
        [this]() -> const Reglages & { return brouillon_; },
        [this](const Reglages &apres, const QString &chemin, const QString &) { return noter(apres, chemin); }};
    vendeurs_ = new PasDuVendeur(ecriture, contexte.jour.aujourdhui(), dernieresFactures(contexte.preferences));
    emballages_ = new FicheEmballages(ecriture);
    connect(vendeurs_, &PasDuVendeur::deux, this, [this](bool vrai) {
        if (vrai)
            brouillon_ = EditionReglages::avecVendeur(brouillon_, tous<Vendeur>.back());
        else
            brouillon_.vendeurs.remove(tous<Vendeur>.back());
        vendeurs_->montrer();
    });
    depart_ = brouillon_;
    pages_->addWidget(page(TextesReglages::premierPas(0), vendeurs_));
    pages_->addWidget(page(TextesReglages::premierPas(1), emballages_));
    pages_->addWidget(page(TextesReglages::premierPas(2), livre_));
    livre_->commencer(premier_);
    titre_->setFont(Theme::titreSection());
    meubler(titre_, Pile::enColonne({.espace = 0}, {{pages_, 1}, filet(Qt::Horizontal), pied()}));
    passerA(Page::vendeurs);
    prendreLaTaille(taille);
}

QWidget *FeuillePremiersPas::page(const QString &consigne, QWidget *contenu)
{
    auto *phrase = new Libelle(consigne, Libelle::Rang::secondaire);
    phrase->setWordWrap(true);
    auto *defilement = new Defilement;
    defilement->setWidget(
        Pile::enColonne({.marges = {20, 20, 20, 24}, .espace = 18}, {phrase, contenu, Pile::reste()}));
    return defilement;
}

QWidget *FeuillePremiersPas::pied()
{
    Boutons::rendrePrincipal(suivant_);
    connect(echec_, &AlerteRelecture::relu, this, [this] { Feuille::reject(); });
    connect(precedent_, &QPushButton::clicked, this, [this] {
        passerA(static_cast<Page>(pages_->currentIndex() - 1)); // what is wrong here may wait
    });
    connect(suivant_, &QPushButton::clicked, this, &FeuillePremiersPas::suivre);
    connect(plusTard_, &QPushButton::clicked, this, &FeuillePremiersPas::remettreLeLivre);
    plusTard_->setAccessibleDescription(QStringLiteral("Commencer sans livre"));
    QBoxLayout *boutons = Pile::rangee({.espace = 8}, {precedent_, Pile::reste(), plusTard_, suivant_});
    return Pile::enColonne({.marges = {20, 12, 20, 16}, .espace = 10}, {echec_, boutons});
}

QString FeuillePremiersPas::noter(const Reglages &apres, const QString &chemin)
{
    const auto avant = objections();
    brouillon_ = apres;
    vendeurs_->montrer();
    emballages_->montrer();
    return Objections::nouvelle(avant, objections(), chemin);
}

Objections::ParChamp FeuillePremiersPas::objections() const
{
    return Objections::surLesReglages(brouillon_, {});
}

void FeuillePremiersPas::passerA(Page page)
{
    echec_->montrer({});
    pages_->setCurrentIndex(static_cast<int>(page));
    titre_->setText(QStringLiteral("%1 · %2 sur %3").arg(titre).arg(pages_->currentIndex() + 1).arg(pages_->count()));
    LecteurDEcran::annoncer(this, titre_->text());
    precedent_->setVisible(page != Page::vendeurs);
    plusTard_->setVisible(page == Page::livre);
    suivant_->setText(page == Page::livre ? QStringLiteral("Commencer avec ce livre") : QStringLiteral("Suivant"));
    switch (page) {
    case Page::vendeurs:
        vendeurs_->prendreLeFocus();
        break;
    case Page::emballages:
        emballages_->prendreLeFocus();
        break;
    case Page::livre:
        preparerLeLivre();
        livre_->prendreLeFocus();
        break;
    }
}

// Sold by one of those who are there by now.
void FeuillePremiersPas::preparerLeLivre()
{
    Donnees donnees = contexte_.donnees();
    donnees.livres.clear();
    donnees.reglages = brouillon_;
    donnees.personnelles = true;
    FormulaireLivre::Cadre cadre;
    cadre.reperes = Objections::reperes(donnees, contexte_.catalogue.stockage().donneesPersonnelles());
    for (const Vendeur vendeur : donnees.vendeurs())
        cadre.vendeurs.append({vendeur, NomsVendeurs::court(vendeur, donnees)});
    livre_->setCadre(cadre);
}

bool FeuillePremiersPas::verifier()
{
    QWidget *faux = nullptr;
    switch (static_cast<Page>(pages_->currentIndex())) {
    case Page::vendeurs:
        vendeurs_->conclure();
        faux = vendeurs_->verifier(objections());
        break;
    case Page::emballages:
        emballages_->conclure();
        faux = emballages_->objecter(objections());
        break;
    case Page::livre:
        return livre_->verifier();
    }
    if (faux)
        faux->setFocus();
    return !faux;
}

void FeuillePremiersPas::suivre()
{
    if (!verifier())
        return;
    if (pages_->currentIndex() == static_cast<int>(Page::livre))
        terminer(true);
    else
        passerA(static_cast<Page>(pages_->currentIndex() + 1));
}

void FeuillePremiersPas::terminer(bool avecLeLivre)
{
    const QDir la = contexte_.catalogue.stockage().donneesPersonnelles();
    if (la.exists())
        return echec_->montrer(TextesDonnees::arriveesEntreTemps(la.path()), true);
    QList<Livre> livres;
    QHash<QString, QByteArray> couvertures;
    if (avecLeLivre) {
        Livre livre = livre_->livre();
        if (const auto &couverture = livre_->couverture()) {
            livre.couverture = Couvertures::nomDuDepot(livre.titre, *couverture);
            couvertures.insert(livre.couverture, couverture->octets);
        }
        livres = EditionLivres::avec({}, livre);
    }
    try {
        DossierPersonnel::creer(la, contexte_.catalogue.ressources(), brouillon_, livres, couvertures);
        contexte_.catalogue.recharger();
    } catch (const Echec &erreur) {
        echec_->montrer(erreur.texte());
        return;
    }
    reprendreLesSeries();
    accept();
}

// Once the sellers are there, of whom it is: what fails now is said over their window, and typed on the next invoice.
void FeuillePremiersPas::reprendreLesSeries()
{
    try {
        const auto factures = vendeurs_->autresDernieresFactures();
        for (auto facture = factures.begin(); facture != factures.end(); ++facture)
            NumerotationFactures{contexte_.preferences}.reprendre(facture.value(), facture.key());
    } catch (const ErreurStockage &erreur) {
        auto *message = new QMessageBox(QMessageBox::Warning, titre,
                                        QStringLiteral("Vos données sont en place, mais le numéro de la dernière "
                                                       "facture n’a pas pu être retenu : tapez le bon numéro sur la "
                                                       "prochaine facture."),
                                        QMessageBox::Ok, parentWidget());
        message->setInformativeText(erreur.texte());
        message->setAttribute(Qt::WA_DeleteOnClose);
        message->open();
    }
}

// "Commencer sans ce livre ?": what was typed of it is not given up by mistake.
void FeuillePremiersPas::remettreLeLivre()
{
    livre_->conclure();
    if (!livre_->aSaisi(premier_)) {
        terminer(false);
        return;
    }
    demander(QStringLiteral("Commencer sans ce livre ?"), QStringLiteral("Ce que vous en avez saisi sera perdu."),
             QStringLiteral("Commencer sans lui"), [this] { terminer(false); });
}

void FeuillePremiersPas::reject()
{
    vendeurs_->conclure();
    emballages_->conclure();
    livre_->conclure();
    if (brouillon_ == depart_ && !livre_->aSaisi(premier_)) {
        Feuille::reject();
        return;
    }
    demander(QStringLiteral("Abandonner les premiers pas ?"),
             QStringLiteral("Ce que vous avez saisi sera perdu ; l’exemple reste en place."),
             QStringLiteral("Abandonner"), [this] { Feuille::reject(); });
}

void FeuillePremiersPas::demander(const QString &quoi, const QString &perte, const QString &oui,
                                  const std::function<void()> &faire)
{
    auto *question =
        new QMessageBox(QMessageBox::Question, QStringLiteral("Quillet"), quoi, QMessageBox::NoButton, this);
    question->setInformativeText(perte);
    question->setAttribute(Qt::WA_DeleteOnClose);
    const QPushButton *accepte = question->addButton(oui, QMessageBox::DestructiveRole);
    QPushButton *continuer = question->addButton(QStringLiteral("Continuer"), QMessageBox::RejectRole);
    question->setDefaultButton(continuer);
    question->setEscapeButton(continuer);
    connect(accepte, &QPushButton::clicked, this, faire);
    question->open();
}

} // namespace Quillet
