#include "model/Calcul.h"

#include "model/Format.h"

#include <algorithm>

namespace {

QList<Calcul::Ligne> lignesVendues(const QList<Livre> &livres, const Commande &commande)
{
    QList<Calcul::Ligne> lignes;
    for (const Livre &livre : livres) {
        const int quantite = commande.quantite(livre);
        if (livre.vendeur == commande.vendeur() && livre.disponible && quantite > 0)
            lignes.append({livre, quantite});
    }
    return lignes;
}

Centimes prixDesLivres(const QList<Calcul::Ligne> &lignes)
{
    Centimes somme;
    for (const auto &ligne : lignes)
        somme += ligne.montant();
    return somme;
}

Grammes poidsDesLivres(const QList<Calcul::Ligne> &lignes)
{
    Grammes somme;
    for (const auto &ligne : lignes)
        somme += ligne.livre.poids.value_or(Grammes{}) * ligne.quantite;
    return somme;
}

QList<Livre> sansPoids(const QList<Calcul::Ligne> &lignes)
{
    QList<Livre> livres;
    for (const auto &ligne : lignes)
        if (!ligne.livre.poids)
            livres.append(ligne.livre);
    return livres;
}

Grammes poidsDeLEmballage(const QList<Emballage> &emballages, const Commande &commande)
{
    if (commande.emballage() == Commande::autrePoids())
        return std::max(commande.poidsEmballageLibre(), Grammes{});
    const auto choisi = std::ranges::find(emballages, commande.emballage(), &Emballage::nom);
    return choisi == emballages.end() ? Grammes{} : std::max(choisi->poids, Grammes{});
}

std::optional<Grammes> pesee(const std::optional<Grammes> &poids)
{
    return poids && *poids >= Grammes{1} ? poids : std::nullopt;
}

std::optional<GrilleColissimo> grillePour(const Destination &destination, const TarifsColissimo &tarifs)
{
    const GrilleColissimo *grille = tarifs.grille(destination.grille);
    return grille ? std::optional(*grille) : std::nullopt;
}

// The parcel has a price once there is something in it and its weight is really known.
std::optional<Palier> palierDuColis(const Calcul &calcul)
{
    if (calcul.lignes.isEmpty() || !calcul.poidsConnu() || !calcul.grille)
        return std::nullopt;
    return calcul.grille->palier(calcul.poidsRetenu);
}

template <typename T, typename Fonction>
auto si(const std::optional<T> &valeur, Fonction fonction) -> std::optional<decltype(fonction(*valeur))>
{
    return valeur ? std::optional(fonction(*valeur)) : std::nullopt;
}

std::optional<Centimes> fraisDuPaiement(const Calcul &calcul, const FraisPaypal &frais)
{
    if (!calcul.total || !calcul.regionPaypal)
        return std::nullopt;
    return frais.frais(*calcul.total, *calcul.regionPaypal);
}

} // namespace

Calcul::Calcul(const Catalogue &catalogue, const Commande &commande, QDate aujourdhui)
    : lignes(lignesVendues(catalogue.livres(), commande)),
      sousTotal(prixDesLivres(lignes)),
      poidsLivres(poidsDesLivres(lignes)),
      livresNonPeses(sansPoids(lignes)),
      poidsEmballage(poidsDeLEmballage(catalogue.reglages().emballages, commande)),
      poidsCalcule(poidsLivres + poidsEmballage),
      poidsPese(pesee(commande.poidsPese())),
      poidsRetenu(poidsPese.value_or(poidsCalcule)),
      destination(catalogue.destination(commande.codeDestination())),
      regionPaypal(si(destination, [](const Destination &d) { return d.regionPaypal; })),
      douaneRequise(destination && destination->douaneRequise(commande.horsUE())),
      grille(destination ? grillePour(*destination, catalogue.tarifs(Format::iso(aujourdhui))) : std::nullopt),
      palier(palierDuColis(*this)),
      envoi(si(palier, [](const Palier &p) { return p.prix; })),
      total(si(envoi, [this](Centimes port) { return sousTotal + port; })),
      fraisPaypal(fraisDuPaiement(*this, catalogue.reglages().fraisPaypal)),
      reste(si(fraisPaypal, [this](Centimes frais) { return sousTotal - frais; }))
{
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
