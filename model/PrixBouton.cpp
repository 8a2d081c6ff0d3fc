#include "model/PrixBouton.h"

namespace Quillet {

namespace {

std::optional<Centimes> entree(const std::optional<PrixParDestination> &prix, const CodeDestination &code)
{
    if (!prix || !prix->contains(code))
        return std::nullopt;
    return prix->value(code);
}

std::optional<Palier> palierDuLivreSeul(const Livre &livre, const GrilleColissimo *grille, Grammes emballage)
{
    return livre.poids && grille ? grille->palier(*livre.poids + emballage) : std::nullopt;
}

} // namespace

PrixBouton::Etat PrixBouton::etat() const
{
    if (!calcule)
        return Etat::sansPrix;
    if (calcule == actuel)
        return Etat::aJour;
    return calcule == ecarte ? Etat::garde : Etat::aReporter;
}

QList<PrixBouton> PrixBouton::calculer(const Livre &livre, const TarifsColissimo &tarifs,
                                       const QList<Destination> &destinations, Grammes emballage)
{
    QList<PrixBouton> boutons;
    boutons.reserve(destinations.size());
    for (const Destination &destination : destinations) {
        PrixBouton bouton;
        bouton.destination = destination;
        bouton.actuel = entree(livre.prixPaypal, destination.code);
        bouton.ecarte = entree(livre.prixEcartes, destination.code);
        if (const auto palier = palierDuLivreSeul(livre, tarifs.grille(destination.grille), emballage)) {
            bouton.palier = palier->jusqua;
            bouton.envoi = palier->prix;
            bouton.calcule = livre.prix + palier->prix;
        }
        boutons.append(bouton);
    }
    return boutons;
}

QList<PrixBouton> PrixBouton::aReporter(QList<PrixBouton> boutons)
{
    boutons.removeIf([](const PrixBouton &bouton) { return bouton.etat() != Etat::aReporter; });
    return boutons;
}

} // namespace Quillet
