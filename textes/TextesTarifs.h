#pragma once

#include "model/Calcul.h"
#include "model/Reglages.h"

#include <QList>
#include <QString>

#include <optional>

// What the tariffs screen says of the schedules and fees: texts only, laid out by the widgets.
namespace Quillet::TextesTarifs {

struct Prix
{
    QString texte;        // "—" when the zone has no such tier
    bool enCours = false; // what the order in progress pays

    bool operator==(const Prix &) const = default;
};

struct Palier
{
    QString poids;    // "jusqu’à 250 g"
    QList<Prix> prix; // one a zone

    bool operator==(const Palier &) const = default;
};

// A table: its tiers in rows, its zones in columns.
struct Famille
{
    QString titre;
    QStringList zones; // at least one
    QList<Palier> paliers;
    QStringList pays; // of the zones whose names do not say it all

    bool operator==(const Famille &) const = default;
};

struct Frais
{
    QString libelle;
    QString valeur;

    bool operator==(const Frais &) const = default;
};

// "en vigueur au 1er janvier 2026"
QString enVigueur(const TarifsColissimo &tarifs);
// "À partir du 1er mars 2026"
QString aPartirDu(const TarifsColissimo &tarifs);
// In the families' order; a grid of an unknown family stands nowhere. The tier of `commande` is marked where the
// schedule has it.
QList<Famille> familles(const TarifsColissimo &tarifs, const std::optional<Calcul> &commande);
// The five figures, in the order in which PayPal shows them. "—" for an extra rate that is missing.
QList<Frais> frais(const FraisPaypal &frais);

} // namespace Quillet::TextesTarifs
