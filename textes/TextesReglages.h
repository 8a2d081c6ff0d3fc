#pragma once

#include "model/Donnees.h"

#include <QDate>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

// What the forms of the settings say: names of fields and of what is done to them. Texts only, laid out by the widgets.
namespace Quillet::TextesReglages {

// One field of a seller's form.
struct Champ
{
    const char *cle = nullptr; // as the rules call it
    QString libelle;
    QString aide;   // under the field; mostly empty
    QString invite; // an example
    int lignes = 1;
    std::function<QString(const IdentiteVendeur &)> lire;
    std::function<void(IdentiteVendeur &, const QString &)> poser;
};

// In the order in which they are filled in; the EORI number stands last.
QList<Champ> champsDuVendeur();
// Made of the SIRET number; none without one, nor when the seller has that number already.
std::optional<QString> eoriPropose(const IdentiteVendeur &identite);

// The way to a seller, as the rules call it: "vendeurs.davrel".
QString chemin(Vendeur vendeur);
// "adresse de « Éditions Davrel »"
QString geste(const QString &libelle, const IdentiteVendeur &identite);

// What a page of the first steps is for.
QString premierPas(int rang);
// "Vendeur", "Second vendeur"
QString titre(Vendeur vendeur);
// That the data are where others have put them, and change there.
QString ouLesChanger(const QString &dossier);
// The same, and how to have one's own.
QString chezUnAutre(const QString &dossier);
// The number that the next invoice will bear after the last one that was made elsewhere.
QString prochaineFacture(const QString &derniere, QDate jour);
// Why such a number cannot be the last one; empty when it can.
QString derniereFactureRefusee(const QString &derniere, QDate jour);
// That a seller cannot go: books are sold under that name; empty when they can.
QString nePeutPartir(Vendeur vendeur, const Donnees &donnees);
// Destinations whose parcels customs may stop, which may want a code of their own.
QList<Destination> destinationsADeclarer(const Donnees &donnees);

} // namespace Quillet::TextesReglages
