#include "ui/commande/Recapitulatif.h"

#include "documents/ReponseType.h"
#include "model/Format.h"
#include "ui/Theme.h"
#include "ui/commande/TextesRecapitulatif.h"
#include "ui/commun/Alerte.h"
#include "ui/commun/ChampACopier.h"
#include "ui/commun/ChampEntier.h"
#include "ui/commun/Choix.h"
#include "ui/commun/ChoixSegmente.h"
#include "ui/commun/Formulaire.h"
#include "ui/commun/Icone.h"
#include "ui/commun/Interrupteur.h"
#include "ui/commun/Libelle.h"
#include "ui/commun/NombreRoulant.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Formulaire;

namespace {

// A field with its unit behind it.
QWidget *enGrammes(ChampEntier *champ)
{
    auto *ensemble = new QWidget;
    auto *rangee = new QHBoxLayout(ensemble);
    rangee->setContentsMargins(0, 0, 0, 0);
    rangee->setSpacing(6);
    rangee->addWidget(champ);
    rangee->addWidget(new Libelle(QStringLiteral("g"), Libelle::Rang::secondaire));
    ensemble->setFocusProxy(champ);
    return ensemble;
}

std::optional<Grammes> enGrammes(std::optional<qint64> valeur)
{
    return valeur ? std::optional(Grammes{*valeur}) : std::nullopt;
}

class FondDuTotal : public QWidget
{
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        QColor fond = Theme::accentTexte(palette());
        fond.setAlphaF(0.14F);
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(fond);
        peintre.drawRoundedRect(rect(), Theme::rayonGroupe, Theme::rayonGroupe);
    }
};

void mettreEnValeur(QWidget *valeur, bool forte)
{
    valeur->setFont(forte ? Theme::enGras(valeur->parentWidget()->font()) : valeur->parentWidget()->font());
}

} // namespace

Recapitulatif::Recapitulatif(const Catalogue &catalogue, Commande &commande, QWidget *parent)
    : QScrollArea(parent), catalogue_(catalogue), commande_(commande)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);

    auto *page = new QWidget;
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::AlternateBase);
    auto *colonne = new QVBoxLayout(page);
    colonne->setContentsMargins(16, 24, 16, 28);
    colonne->setSpacing(22);
    for (QWidget *section : {sectionLivres(), sectionPoids(), sectionDestination(), sectionMontants(), sectionLien()})
        colonne->addWidget(section);
    colonne->addStretch(1);
    setWidget(page);
}

void Recapitulatif::montrer(const Calcul &calcul)
{
    montrerLivres(calcul);
    montrerPoids(calcul);
    montrerAvertissements(calcul);
    montrerDestination(calcul);
    montrerMontants(calcul);
    montrerLien(calcul);
}

QWidget *Recapitulatif::sectionLivres()
{
    auto *section = new Section(tr("Livres"));
    groupeLivres_ = section->groupe();
    aucunLivre_ =
        new Libelle(tr("Aucun livre pour l’instant : cliquez sur une couverture ou sur +."), Libelle::Rang::secondaire);
    aucunLivre_->setWordWrap(true);
    groupeLivres_->ajouter(aucunLivre_);
    sousTotal_.montant = new NombreRoulant;
    sousTotal_.rangee = new Rangee(tr("Sous-total"), sousTotal_.montant);
    groupeLivres_->ajouter(sousTotal_.rangee);
    mettreEnValeur(sousTotal_.montant, true);
    return section;
}

void Recapitulatif::montrerLivres(const Calcul &calcul)
{
    const auto lignes = TextesRecapitulatif::livres(calcul);
    while (rangeesLivres_.size() < lignes.size()) {
        auto *montant = new NombreRoulant;
        rangeesLivres_.append({new Rangee({}, montant), montant});
        groupeLivres_->inserer(static_cast<int>(rangeesLivres_.size()), rangeesLivres_.last().rangee);
        sousTotal_.rangee->raise(); // last to be read, too
    }
    for (qsizetype i = 0; i < rangeesLivres_.size(); ++i) {
        const auto &[rangee, montant] = rangeesLivres_[i];
        rangee->setVisible(i < lignes.size());
        if (i >= lignes.size())
            continue;
        rangee->setTexte(lignes[i].libelle);
        rangee->setDetail(lignes[i].detail);
        montant->afficher(lignes[i].valeur);
    }
    aucunLivre_->setVisible(lignes.isEmpty());
    sousTotal_.rangee->setVisible(!lignes.isEmpty());
    sousTotal_.montant->afficher(Format::euros(calcul.sousTotal));
}

QWidget *Recapitulatif::sectionPoids()
{
    auto *section = new Section(tr("Poids"));
    Groupe *groupe = section->groupe();

    poidsLivres_ = new NombreRoulant;
    groupe->ajouter(new Rangee(tr("Livres"), poidsLivres_));

    emballage_ = new Choix;
    for (const Emballage &emballage : catalogue_.reglages().emballages)
        emballage_->ajouter(TextesRecapitulatif::emballage(emballage), emballage.nom);
    emballage_->insertSeparator(emballage_->count());
    emballage_->ajouter(Commande::autrePoids(), Commande::autrePoids());
    connect(emballage_, &Choix::choisi, &commande_, &Commande::setEmballage);
    groupe->ajouter(new Rangee(tr("Emballage"), emballage_));

    poidsLibre_ = new ChampEntier(tr("grammes"));
    rangeePoidsLibre_ = new Rangee(tr("Poids de l’emballage"), enGrammes(poidsLibre_));
    poidsLibre_->setAccessibleName(tr("Poids de l’emballage, en grammes"));
    connect(poidsLibre_, &ChampEntier::saisie, &commande_,
            [this](std::optional<qint64> valeur) { commande_.setPoidsEmballageLibre(Grammes{valeur.value_or(0)}); });
    groupe->ajouter(rangeePoidsLibre_);

    poidsCalcule_.montant = new NombreRoulant;
    poidsCalcule_.rangee = new Rangee(tr("Poids calculé"), poidsCalcule_.montant);
    groupe->ajouter(poidsCalcule_.rangee);

    poidsPese_ = new ChampEntier(tr("grammes"));
    poidsPese_->setPlaceholderText(QStringLiteral("—"));
    poidsPese_->setAccessibleName(tr("Colis pesé, en grammes"));
    auto *colisPese = new Rangee(tr("Colis pesé"), enGrammes(poidsPese_));
    colisPese->setDetail(tr("emballage compris ; remplace le poids calculé"));
    connect(poidsPese_, &ChampEntier::saisie, &commande_,
            [this](std::optional<qint64> valeur) { commande_.setPoidsPese(enGrammes(valeur)); });
    groupe->ajouter(colisPese);
    mettreEnValeur(poidsPese_, true);

    palier_.montant = new NombreRoulant;
    palier_.rangee = new Rangee({}, palier_.montant);
    groupe->ajouter(palier_.rangee);

    avertissements_ = new QWidget;
    auto *lignes = new QVBoxLayout(avertissements_);
    lignes->setContentsMargins(0, 0, 0, 0);
    lignes->setSpacing(10);
    groupe->ajouter(avertissements_);
    return section;
}

void Recapitulatif::montrerPoids(const Calcul &calcul)
{
    poidsLivres_->afficher(Format::poids(calcul.poidsLivres));
    emballage_->montrer(commande_.emballage());
    rangeePoidsLibre_->setVisible(commande_.emballage() == Commande::autrePoids());
    poidsLibre_->montrer(commande_.poidsEmballageLibre().valeur());

    // Once weighed, the computed weight no longer counts: struck through, not hidden.
    const bool pese = calcul.poidsPese.has_value();
    QFont police = Theme::enGras(font(), pese ? QFont::Normal : QFont::DemiBold);
    police.setStrikeOut(pese);
    poidsCalcule_.montant->setFont(police);
    poidsCalcule_.montant->setForegroundRole(pese ? QPalette::PlaceholderText : QPalette::WindowText);
    poidsCalcule_.montant->afficher(Format::poids(calcul.poidsCalcule));
    const auto saisi = commande_.poidsPese();
    poidsPese_->montrer(saisi ? std::optional(saisi->valeur()) : std::nullopt);

    const auto palier = TextesRecapitulatif::palier(calcul);
    palier_.rangee->setVisible(palier.has_value());
    if (palier) {
        palier_.rangee->setTexte(palier->libelle);
        palier_.rangee->setDetail(palier->detail);
        palier_.montant->afficher(palier->valeur);
    }
}

void Recapitulatif::montrerAvertissements(const Calcul &calcul)
{
    const auto avertissements = TextesRecapitulatif::avertissementsDePesee(calcul);
    QStringList textes;
    for (const auto &avertissement : avertissements)
        textes.append(avertissement.texte);
    avertissements_->setVisible(!textes.isEmpty());
    if (textes == avertissementsMontres_)
        return;
    avertissementsMontres_ = textes;
    qDeleteAll(avertissements_->findChildren<Alerte *>(Qt::FindDirectChildrenOnly));
    for (const auto &avertissement : avertissements) {
        auto *alerte = new Alerte(avertissement.symbole, avertissement.texte);
        avertissements_->layout()->addWidget(alerte);
        alerte->show(); // now: a layout would show it one turn of the event loop later
    }
}

QWidget *Recapitulatif::sectionDestination()
{
    auto *section = new Section(tr("Destination"));
    Groupe *groupe = section->groupe();

    destination_ = new Choix;
    for (const Destination &destination : catalogue_.destinations())
        destination_->ajouter(destination.libelleCourt, destination.code);
    connect(destination_, &Choix::choisi, &commande_, &Commande::setCodeDestination);
    groupe->ajouter(new Rangee(tr("Envoi vers"), destination_));

    destinationComplete_ = new Libelle({}, Libelle::Rang::secondaire);
    destinationComplete_->setFont(Theme::encadre());
    destinationComplete_->setWordWrap(true);
    groupe->ajouter(destinationComplete_);

    horsUE_ = new Interrupteur;
    rangeeHorsUE_ = new Rangee({}, horsUE_);
    rangeeHorsUE_->setDetail(tr("hors Union européenne : déclaration en douane"));
    connect(horsUE_, &QAbstractButton::clicked, &commande_, &Commande::setHorsUE);
    groupe->ajouter(rangeeHorsUE_);

    declaration_ = new Libelle({});
    rangeeDeclaration_ = new Rangee(tr("Déclaration en douane"), declaration_);
    groupe->ajouter(rangeeDeclaration_);
    return section;
}

void Recapitulatif::montrerDestination(const Calcul &calcul)
{
    destination_->montrer(commande_.codeDestination());
    const QString complete = TextesRecapitulatif::destinationComplete(calcul);
    destinationComplete_->setText(complete);
    destinationComplete_->setVisible(!complete.isEmpty());

    const QString exception = calcul.destination ? calcul.destination->douaneSauf.value_or(QString()) : QString();
    rangeeHorsUE_->setVisible(!exception.isEmpty());
    rangeeHorsUE_->setTexte(tr("Colis pour %1").arg(exception));
    horsUE_->setAccessibleName(rangeeHorsUE_->libelle()->text());
    horsUE_->setChecked(commande_.horsUE());

    rangeeDeclaration_->setVisible(calcul.destination.has_value());
    declaration_->setText(TextesRecapitulatif::declaration(calcul));
}

QWidget *Recapitulatif::totalAPayer()
{
    auto *libelle = new Libelle(tr("TOTAL À PAYER"));
    QFont titre = Theme::enGras(font());
    titre.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    libelle->setFont(titre);
    total_ = new NombreRoulant;
    total_->setFont(Theme::montant());

    auto *fond = new FondDuTotal;
    auto *rangee = new QHBoxLayout(fond);
    rangee->setContentsMargins(12, 10, 12, 10);
    rangee->addWidget(libelle, 1);
    rangee->addWidget(total_);
    return seul(fond);
}

QWidget *Recapitulatif::sectionMontants()
{
    auto *section = new Section(tr("Montants"));
    const auto rangee = [&](const QString &libelle) {
        auto *montant = new NombreRoulant;
        auto *ligne = new Rangee(libelle, montant);
        section->groupe()->ajouter(ligne);
        return RangeeMontant{ligne, montant};
    };
    envoi_ = rangee(tr("Envoi Colissimo"));
    section->groupe()->ajouter(totalAPayer());
    frais_ = rangee(tr("Frais PayPal"));
    reste_ = rangee(tr("Il vous reste"));
    reste_.rangee->setDetail(tr("les livres moins les frais PayPal"));
    mettreEnValeur(reste_.montant, true);
    mettreEnValeur(reste_.rangee->libelle(), true);
    return section;
}

void Recapitulatif::montrerMontants(const Calcul &calcul)
{
    envoi_.rangee->setDetail(TextesRecapitulatif::detailEnvoi(calcul));
    envoi_.montant->afficher(TextesRecapitulatif::euros(calcul.envoi));
    total_->setForegroundRole(calcul.total ? QPalette::WindowText : QPalette::PlaceholderText);
    total_->afficher(TextesRecapitulatif::euros(calcul.total));
    frais_.rangee->setDetail(TextesRecapitulatif::detailFrais(calcul, catalogue_.reglages().fraisPaypal));
    frais_.montant->afficher(calcul.fraisPaypal ? Format::euros(-*calcul.fraisPaypal) : TextesRecapitulatif::euros({}));
    reste_.montant->afficher(TextesRecapitulatif::euros(calcul.reste));
}

QWidget *Recapitulatif::sectionLien()
{
    auto *section =
        new Section(tr("Lien de paiement PayPal"),
                    tr("Un prix fixe en EUR, Quantité désactivée. Onglet Checkout : adresse de livraison activée. "
                       "Onglet Confirmation : URL de redirection automatique."));
    Groupe *groupe = section->groupe();

    langue_ = new ChoixSegmente({tr("Français"), tr("Anglais")}, {.police = font()});
    connect(langue_, &ChoixSegmente::choisi, &commande_,
            [this](int indice) { commande_.setLangue(indice == 0 ? Langue::francais : Langue::anglais); });
    groupe->ajouter(new RangeeHaute(tr("Langue de l’acheteur"), langue_));

    auto *creer =
        new QPushButton(Icone::icone(QStringLiteral("arrow.up.forward.app")), tr("Créer le lien dans PayPal"));
    connect(creer, &QPushButton::clicked, this, [] { QDesktopServices::openUrl(ReponseType::creationDuLien()); });
    groupe->ajouter(Formulaire::seul(creer));

    pays_ = new QLineEdit;
    connect(pays_, &QLineEdit::textEdited, &commande_, &Commande::setPaysLivraison);
    rangeePays_ = new RangeeHaute(tr("Pays de livraison"), pays_);
    groupe->ajouter(rangeePays_);

    const auto champ = [&](const QString &titre) {
        auto *aCopier = new ChampACopier(titre);
        groupe->ajouter(aCopier);
        return aCopier;
    };
    nomDeLObjet_ = champ(tr("Nom de l’objet"));
    description_ = champ(tr("Description"));
    prix_ = champ(tr("Prix"));
    retour_ = champ(tr("URL de redirection"));
    return section;
}

void Recapitulatif::montrerLien(const Calcul &calcul)
{
    langue_->montrer(langueAcheteur(commande_, calcul) == Langue::francais ? 0 : 1);
    const auto lien = TextesRecapitulatif::lienDePaiement(calcul, catalogue_.reglages(), commande_);
    for (QWidget *rangee : {static_cast<QWidget *>(rangeePays_), static_cast<QWidget *>(nomDeLObjet_),
                            static_cast<QWidget *>(description_), static_cast<QWidget *>(prix_)})
        rangee->setVisible(lien.has_value());
    retour_->setVisible(lien && lien->retour);
    if (pays_->text() != commande_.paysLivraison())
        pays_->setText(commande_.paysLivraison());
    if (!lien)
        return;
    rangeePays_->setDetail(lien->indicationDuPays);
    pays_->setPlaceholderText(lien->paysPropose);
    nomDeLObjet_->montrer(lien->nomDeLObjet);
    description_->montrer(lien->description);
    prix_->montrer(lien->prix, lien->prixAffiche);
    retour_->montrer(lien->retour.value_or(QString()));
}
