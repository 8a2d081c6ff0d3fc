#include "ui/commande/SectionPoids.h"

#include "composants/Alerte.h"
#include "composants/Choix.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"
#include "model/Commande.h"
#include "model/Donnees.h"
#include "model/Format.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/commande/ChampGrammes.h"

#include <utility>

namespace Quillet {

namespace {

ChampGrammes *champ(const QString &nom)
{
    auto *champ = new ChampGrammes;
    champ->setAccessibleName(QStringLiteral("%1, en grammes").arg(nom));
    return champ;
}

// The field with its unit behind it.
QWidget *avecUnite(ChampGrammes *champ)
{
    auto *unite = new Libelle(QStringLiteral("g"), Libelle::Rang::secondaire);
    QWidget *ensemble = Pile::enRangee({.espace = 6}, {champ, unite});
    ensemble->setFocusProxy(champ);
    return ensemble;
}

} // namespace

SectionPoids::SectionPoids(const Donnees &donnees, Commande &commande, QWidget *parent)
    : Section(QStringLiteral("Poids"), {}, parent),
      donnees_(donnees),
      commande_(commande),
      poidsLivres_(QStringLiteral("Livres")),
      emballage_(new Choix),
      poidsLibre_(champ(QStringLiteral("Poids de l’emballage"))),
      rangeePoidsLibre_(new Formulaire::Rangee(QStringLiteral("Poids de l’emballage"), avecUnite(poidsLibre_))),
      poidsCalcule_(QStringLiteral("Poids calculé")),
      poidsPese_(champ(QStringLiteral("Colis pesé"))),
      avertissements_(Pile::enColonne({.espace = 10}, {}))
{
    proposerLesEmballages();
    poidsPese_->setPlaceholderText(Format::absent);
    poidsPese_->setFont(Theme::enGras(font()));
    auto *colisPese = new Formulaire::Rangee(QStringLiteral("Colis pesé"), avecUnite(poidsPese_));
    colisPese->setDetail(QStringLiteral("emballage compris ; remplace le poids calculé"));

    groupe()->ajouter(poidsLivres_.rangee);
    groupe()->ajouter(new Formulaire::RangeeHaute(QStringLiteral("Emballage"), emballage_));
    groupe()->ajouter(rangeePoidsLibre_);
    groupe()->ajouter(poidsCalcule_.rangee);
    groupe()->ajouter(colisPese);
    groupe()->ajouter(palier_.rangee);
    groupe()->ajouter(avertissements_);

    connect(emballage_, &Choix::choisi, &commande_, &Commande::setEmballage);
    connect(poidsLibre_, &ChampGrammes::saisi, this, [this](const std::optional<Grammes> &poids) {
        commande_.setPoidsEmballageLibre(poids.value_or(Grammes{0}));
    });
    connect(poidsPese_, &ChampGrammes::saisi, &commande_, &Commande::setPoidsPese);
}

void SectionPoids::proposerLesEmballages()
{
    proposes_ = donnees_.reglages.emballages;
    emballage_->clear();
    for (const Emballage &emballage : std::as_const(proposes_))
        emballage_->ajouter(TextesRecapitulatif::emballage(emballage), emballage.nom);
    emballage_->insertSeparator(emballage_->count());
    emballage_->ajouter(BonDeCommande::autrePoids(), BonDeCommande::autrePoids());
}

void SectionPoids::montrer(const Calcul &calcul)
{
    poidsLivres_.montant->afficher(Format::poids(calcul.poidsLivres));
    if (proposes_ != donnees_.reglages.emballages)
        proposerLesEmballages();
    emballage_->montrer(commande_.bon().emballage);
    rangeePoidsLibre_->setVisible(commande_.bon().emballage == BonDeCommande::autrePoids());
    poidsLibre_->montrer(commande_.bon().poidsEmballageLibre);
    montrerPoidsCalcule(calcul);
    poidsPese_->montrer(commande_.bon().poidsPese);

    const auto palier = TextesRecapitulatif::palier(calcul);
    palier_.rangee->setVisible(palier.has_value());
    if (palier) {
        palier_.rangee->setTexte(palier->libelle);
        palier_.rangee->setDetail(palier->detail);
        palier_.montant->afficher(palier->valeur);
        palier_.rangee->setToolTip(TextesRecapitulatif::dernierPalier(calcul));
    }
    montrerAvertissements(calcul);
}

// Once the parcel is weighed, the computed weight no longer counts: struck through, not hidden.
void SectionPoids::montrerPoidsCalcule(const Calcul &calcul)
{
    const bool pese = calcul.poidsPese.has_value();
    QFont police = Theme::enGras(font(), pese ? QFont::Normal : QFont::DemiBold);
    police.setStrikeOut(pese);
    poidsCalcule_.montant->setFont(police);
    poidsCalcule_.montant->setForegroundRole(pese ? Theme::roleSecondaire : QPalette::WindowText);
    poidsCalcule_.montant->afficher(Format::poids(calcul.poidsCalcule));
}

void SectionPoids::montrerAvertissements(const Calcul &calcul)
{
    const auto avertissements = TextesRecapitulatif::avertissementsDePesee(calcul);
    avertissements_->setVisible(!avertissements.isEmpty());
    if (avertissements == avertissementsMontres_)
        return;
    avertissementsMontres_ = avertissements;
    qDeleteAll(avertissements_->findChildren<Alerte *>(Qt::FindDirectChildrenOnly));
    for (const auto &avertissement : avertissements) {
        auto *alerte = new Alerte(avertissement.symbole, avertissement.texte, Alerte::Ton::avertissement);
        avertissements_->layout()->addWidget(alerte);
        alerte->show(); // now: a layout would show it one turn of the event loop later
    }
}

} // namespace Quillet
