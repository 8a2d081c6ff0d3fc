#pragma once

#include "documents/EmissionFacture.h"
#include "model/Calcul.h"
#include "model/Donnees.h"

#include <QList>
#include <QString>

#include <optional>

// What the documents' screens say: texts only, laid out by the widgets.
namespace Quillet::TextesDocuments {

// One value of the customs form.
struct Champ
{
    QString titre; // none for an address that goes on
    QString valeur;
    QString affichage; // in place of the value, where it is not empty
    QString alerte;    // why it may not be right; mostly empty

    bool operator==(const Champ &) const = default;
};

struct Rubrique
{
    QString titre;
    QString precision; // beside the title; may be empty
    QList<Champ> champs;

    bool operator==(const Rubrique &) const = default;
};

// The site of La Poste where customs forms are filled in.
QString siteDeLaPoste();
QStringList instructionsDeDouane();
// The form from top to bottom; the sender stands last, when the seller's address is known.
QList<Rubrique> declaration(const Calcul &calcul, const Reglages &reglages);

// Why no invoice can be made.
struct Obstacle
{
    QString symbole;
    QString titre; // may be empty
    QString raison;
};

// None when the invoice can be made.
std::optional<Obstacle> obstacleALaFacture(const Calcul &calcul, const Donnees &donnees);
// That there is nothing to write of.
QString sansLivre();
// That the settings lack the seller's identity; empty when they do not.
QString sansIdentite(const Calcul &calcul, const Donnees &donnees);
// What is odd about a number; empty when it carries the day's series on.
QString remarqueSurLeNumero(const QString &numero, const PlaceDuNumero &place, QDate jour);
// That an invoice has left for this order, under the number `partie`; empty when there is none.
QString dejaPartie(const QString &partie, const QString &numero);
// The proposed number went to another invoice: this one waits, with the next.
QString numeroPris(const QString &numero, const QString &suivant);
// The seller, as the invoice will name them, one line each.
QString vendeur(const IdentiteVendeur &vendeur);
// That nobody is invoiced; empty when somebody is.
QString sansAcheteur(const QString &acheteur);
// That the seller has no registration number; empty when there is one.
QString sansSiret(const IdentiteVendeur &vendeur);

} // namespace Quillet::TextesDocuments
