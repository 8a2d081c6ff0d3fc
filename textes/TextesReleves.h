#pragma once

#include "model/Reglages.h"
#include "watch/PorteeTarifs.h"

#include <QList>
#include <QString>
#include <QStringList>

// What should be known, or looked at once more, before a reading is kept: texts only, laid out by its sheet.
namespace Quillet::TextesReleves {

// What orders pay otherwise, and from when; empty when these schedules have no effect.
QString effet(const PorteeTarifs &portee);
// What heads the list of differences from the day before, or stands for it when it is empty.
QString depuisLaVeille(const QList<EcartTarif> &ecarts);
// A sentence for whatever is wrong with the schedules as a whole.
QStringList reserves(const PorteeTarifs &portee, const TarifsColissimo &lus, const Donnees &donnees,
                     const Jour &aujourdhui);
// A sentence for each price that should be looked at twice.
QStringList prixAVerifier(const PorteeTarifs &portee);
// As said above the list, where each is marked: all of a few, how many of more.
QStringList resume(const QStringList &prixAVerifier);

// The fees in use beside those read, in PayPal's order.
struct Frais
{
    QString libelle;
    QString enVigueur;
    QString lu;
    bool change = false;
    bool aVerifier = false;
};
QList<Frais> frais(const FraisPaypal &enVigueur, const FraisPaypal &lus);
// A sentence for each of them that should be looked at twice.
QStringList fraisAVerifier(const QList<Frais> &frais);
// As said under the fees, where each is marked; empty when none is.
QString fraisMarques(const QStringList &fraisAVerifier);

// The first sentences, one a line, then how many more there are.
QString enumeration(const QStringList &phrases);

} // namespace Quillet::TextesReleves
