#include "bench/Echantillon.h"
#include "bench/Mesures.h"
#include "model/Calcul.h"
#include "model/Catalogue.h"

#include <chrono>

namespace Quillet {

namespace {

using Horloge = std::chrono::steady_clock;
using Microsecondes = std::chrono::duration<double, std::micro>;

constexpr int series = 21;
constexpr auto dureeDUneSerie = std::chrono::milliseconds(20);
const QDate jour(2026, 3, 2);

// Microseconds a call, with an order of ten titles or so from all over the catalogue.
QList<double> calculer(const Donnees &donnees)
{
    const qsizetype pas = donnees.livres.size() / 10;
    BonDeCommande bon{.poidsPese = Grammes{1200}};
    for (qsizetype i = 0; i < donnees.livres.size(); i += pas)
        bon.ajuster(donnees.livres[i], 1);
    QList<double> durees;
    while (durees.size() < series) {
        int appels = 0;
        const auto debut = Horloge::now();
        do {
            const Calcul calcul = Calcul::de(donnees, bon, jour);
            if (!calcul.total)
                qFatal("La commande mesurée n’a pas de prix");
            ++appels;
        } while (Horloge::now() - debut < dureeDUneSerie);
        durees.append(Microsecondes(Horloge::now() - debut).count() / appels);
    }
    return durees;
}

QList<double> calculer(int livres)
{
    const Echantillon echantillon(livres, Echantillon::Images::sans);
    return calculer(Catalogue::charge(echantillon.ressources(), echantillon.stockage())->donnees());
}

} // namespace

QList<Releve> mesurerCalcul()
{
    const Echantillon echantillon;
    const auto livre = Catalogue::charge(echantillon.ressources(), echantillon.stockage());
    const QString us = QStringLiteral("µs");
    constexpr int petit = 1'000;
    constexpr int grand = 100'000;
    Releve catalogueLivre =
        releve(QStringLiteral("Calcul, %1 livres (catalogue livré)").arg(livre->donnees().livres.size()), us,
               calculer(livre->donnees()));
    catalogueLivre.but = 100;
    const Releve mille = releve(QStringLiteral("Calcul, 1 000 livres"), us, calculer(petit));
    const Releve centMille = releve(QStringLiteral("Calcul, 100 000 livres"), us, calculer(grand));
    constexpr double nsParUs = 1000;
    return {catalogueLivre,
            mille,
            centMille,
            {.nom = QStringLiteral("Calcul, par livre : 100 000 contre 1 000"),
             .unite = QStringLiteral("ns"),
             .mediane = centMille.mediane * nsParUs / grand,
             .reference = mille.mediane * nsParUs / petit,
             .but = 2}};
}

} // namespace Quillet
