#include "model/Calcul.h"

#include <algorithm>

namespace Quillet {

namespace {

QList<Calcul::Ligne> lignesVendues(const QList<Livre> &livres, const BonDeCommande &bon)
{
    QList<Calcul::Ligne> lignes;
    for (const Livre &livre : livres) {
        const int quantite = bon.quantite(livre);
        if (livre.vendeur == bon.vendeur && livre.disponible && quantite > 0)
            lignes.append({livre, quantite});
    }
    return lignes;
}

Grammes poidsDeLEmballage(const QList<Emballage> &emballages, const BonDeCommande &bon)
{
    if (bon.emballage == BonDeCommande::autrePoids())
        return std::max(bon.poidsEmballageLibre, Grammes{});
    const auto choisi = std::ranges::find(emballages, bon.emballage, &Emballage::nom);
    return choisi == emballages.end() ? Grammes{} : std::max(choisi->poids, Grammes{});
}

void additionner(Calcul &calcul)
{
    for (const auto &[livre, quantite] : calcul.lignes) {
        calcul.sousTotal += livre.prix * quantite;
        calcul.poidsLivres += livre.poids.value_or(Grammes{}) * quantite;
        if (!livre.poids)
            calcul.livresNonPeses.append(livre);
    }
}

void destiner(Calcul &calcul, const TarifsColissimo &tarifs, bool horsUE)
{
    calcul.regionPaypal = calcul.destination->regionPaypal;
    calcul.douaneRequise = calcul.destination->douaneRequise(horsUE);
    if (const GrilleColissimo *grille = tarifs.grille(calcul.destination->grille))
        calcul.grille = *grille;
}

// The parcel has a price once there is something in it and its weight is really known.
std::optional<Palier> palierDuColis(const Calcul &calcul)
{
    if (calcul.lignes.isEmpty() || !calcul.poidsConnu() || !calcul.grille)
        return std::nullopt;
    return calcul.grille->palier(calcul.poidsRetenu);
}

void chiffrer(Calcul &calcul, const FraisPaypal &frais)
{
    calcul.envoi = calcul.palier->prix;
    calcul.total = calcul.sousTotal + *calcul.envoi;
    calcul.fraisPaypal = frais.frais(*calcul.total, *calcul.regionPaypal);
    calcul.reste = calcul.sousTotal - *calcul.fraisPaypal;
}

} // namespace

Calcul Calcul::de(const Donnees &donnees, const BonDeCommande &bon, const Jour &aujourdhui)
{
    Calcul calcul;
    calcul.lignes = lignesVendues(donnees.livres, bon);
    additionner(calcul);
    calcul.poidsEmballage = poidsDeLEmballage(donnees.reglages.emballages, bon);
    calcul.poidsCalcule = calcul.poidsLivres + calcul.poidsEmballage;
    if (bon.poidsPese >= Grammes{1})
        calcul.poidsPese = bon.poidsPese;
    calcul.poidsRetenu = calcul.poidsPese.value_or(calcul.poidsCalcule);
    calcul.destination = donnees.destination(bon.codeDestination);
    if (calcul.destination)
        destiner(calcul, donnees.tarifs(aujourdhui), bon.horsUE);
    calcul.palier = palierDuColis(calcul);
    if (calcul.palier)
        chiffrer(calcul, donnees.reglages.fraisPaypal);
    return calcul;
}

bool Calcul::depasseLaGrille() const
{
    return !lignes.isEmpty() && poidsConnu() && grille && !grille->paliers.isEmpty() && !palier;
}

QSet<Vendeur> Calcul::vendeurs() const
{
    QSet<Vendeur> vendeurs;
    for (const Ligne &ligne : lignes)
        vendeurs.insert(ligne.livre.vendeur);
    return vendeurs;
}

int Calcul::nombreDeLivres() const
{
    int nombre = 0;
    for (const Ligne &ligne : lignes)
        nombre += ligne.quantite;
    return nombre;
}

} // namespace Quillet
