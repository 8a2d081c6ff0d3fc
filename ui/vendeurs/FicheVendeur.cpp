#include "ui/vendeurs/FicheVendeur.h"

#include "composants/Boutons.h"
#include "composants/ChampDeFiche.h"
#include "textes/TextesReglages.h"

#include <QPushButton>

namespace Quillet {

namespace {

ChampsDeReglages::Champ description(Vendeur vendeur, const TextesReglages::Champ &champ)
{
    const auto identite = [vendeur](const Reglages &reglages) { return reglages.vendeurs.value(vendeur); };
    return {.chemin = TextesReglages::chemin(vendeur) + u'.' + QLatin1String(champ.cle),
            .lire = [identite, champ](const Reglages &reglages) { return champ.lire(identite(reglages)); },
            .poser =
                [vendeur, champ](Reglages &reglages, const QString &texte) {
                    champ.poser(reglages.vendeurs[vendeur], texte);
                    return QString();
                },
            .geste = [identite,
                      champ](const Reglages &avant) { return TextesReglages::geste(champ.libelle, identite(avant)); }};
}

} // namespace

FicheVendeur::FicheVendeur(const QString &titre, Vendeur vendeur, const EcritureDesReglages &ecriture, QWidget *parent)
    : Section(titre, {}, parent), vendeur_(vendeur), champs_(ecriture), proposerLEori_(Boutons::deFeuille({}))
{
    for (const TextesReglages::Champ &champ : TextesReglages::champsDuVendeur()) {
        auto *fiche = new ChampDeFiche(champ.libelle, champ.lignes);
        fiche->setNomDit(QStringLiteral("%1, %2").arg(champ.libelle, titre.left(1).toLower() + titre.mid(1)));
        fiche->setAide(champ.aide);
        fiche->setInvite(champ.invite);
        champs_.lier(fiche, description(vendeur, champ));
        groupe()->ajouter(fiche);
        if (!nom_)
            nom_ = fiche;
        eori_ = fiche; // the last one
    }
    eori_->accoler(proposerLEori_);
    connect(proposerLEori_, &QPushButton::clicked, this, &FicheVendeur::proposerLEori);
    montrer();
}

void FicheVendeur::montrer()
{
    champs_.montrer();
    const auto propose = TextesReglages::eoriPropose(champs_.reglages().vendeurs.value(vendeur_));
    if (proposerLEori_->hasFocus() && !propose)
        eori_->setFocus();
    proposerLEori_->setVisible(propose.has_value());
    if (propose) {
        proposerLEori_->setText(*propose);
        proposerLEori_->setAccessibleName(QStringLiteral("Prendre le numéro EORI %1").arg(*propose));
    }
}

void FicheVendeur::proposerLEori()
{
    Reglages apres = champs_.reglages();
    IdentiteVendeur &identite = apres.vendeurs[vendeur_];
    identite.eori = TextesReglages::eoriPropose(identite);
    const TextesReglages::Champ eori = TextesReglages::champsDuVendeur().last();
    eori_->objecter(
        champs_.ecrire(apres, description(vendeur_, eori).chemin, TextesReglages::geste(eori.libelle, identite)));
    montrer();
}

void FicheVendeur::prendreLeFocus()
{
    nom_->setFocus();
}

} // namespace Quillet
