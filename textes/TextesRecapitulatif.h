#pragma once

#include "model/Calcul.h"
#include "model/Langue.h"
#include "model/Suivi.h"

#include <QList>
#include <QString>

#include <optional>

// What the order screen and its summary say of one order: texts only, laid out by the widgets.
namespace Quillet::TextesRecapitulatif {

struct Ligne
{
    QString libelle;
    QString detail;
    QString valeur;
};

struct Avertissement
{
    QString symbole;
    QString texte;

    bool operator==(const Avertissement &) const = default;
};

// The fields of the payment link; only for an order of one known seller whose total is known.
struct LienDePaiement
{
    QString nomDeLObjet;
    QString description;
    QString prix;        // to copy
    QString prixAffiche; // to read
    std::optional<QString> retour;
    QString indicationDuPays;
    QString paysPropose;
    QString zoneDite; // that the buyer will read a zone's name; empty: a country's
};

// The way on, as the button of its section shows it.
struct EtapeSuivante
{
    QString symbole;
    QString texte;
    bool possible = false;
    bool attendue = false; // there is an order for it
};

// "3 livres · 1 250 g"
QString sousTitre(const Calcul &calcul);
// To be heard: "3 livres · 1 250 g, total à payer : 73,19 €"; or that the order was emptied, which can be undone.
QString resume(const Calcul &calcul, bool videe = false);

QList<Ligne> livres(const Calcul &calcul);
// That the order also holds books of another seller, which do not count; empty when it holds none.
QString autresLivres(const Donnees &donnees, const BonDeCommande &bon);
QString emballage(const Emballage &emballage);
std::optional<Ligne> palier(const Calcul &calcul);
// That no tier comes after the parcel's; empty when one does.
QString dernierPalier(const Calcul &calcul);
QList<Avertissement> avertissementsDePesee(const Calcul &calcul);
// The destination's full name, where it says more than the short one.
QString destinationComplete(const Calcul &calcul);
QString declaration(const Calcul &calcul);
QString detailEnvoi(const Calcul &calcul);
QString detailFrais(const Calcul &calcul, const FraisPaypal &frais);
// That PayPal takes more than the books bring; empty when something remains.
QString perte(const Calcul &calcul);
std::optional<LienDePaiement> lienDePaiement(const Calcul &calcul, const Donnees &donnees, const BonDeCommande &bon);
QString libelleDeLaReponse(Langue langue);
QString creationDuLien();
// What was copied last of the link's texts, one at least, and which comes next.
QString tourDeCopie(const Suivi &suivi, const QList<TexteACopier> &textes);

// "Envoi : Suisse · 1 012 g"
QString colis(const Calcul &calcul);
EtapeSuivante etapeSuivante(Etape etape, const Calcul &calcul, Langue langue);

} // namespace Quillet::TextesRecapitulatif
