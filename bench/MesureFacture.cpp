#include "bench/Echantillon.h"
#include "bench/Mesures.h"
#include "documents/Facture.h"
#include "ui/QuilletApp.h"
#include "ui/documents/ImpressionFacture.h"

#include <chrono>

namespace Quillet {

QList<Releve> mesurerFacture()
{
    using Horloge = std::chrono::steady_clock;
    constexpr int factures = 100;
    constexpr double unKio = 1024;
    const QDate jour(2026, 3, 2);

    QuilletApp::preparer();
    const Echantillon echantillon;
    const auto catalogue = Catalogue::charge(echantillon.ressources(), echantillon.stockage());
    BonDeCommande bon{.poidsPese = Grammes{1200}};
    for (qsizetype i = 0; i < 5; ++i)
        bon.ajuster(catalogue->donnees().livres[i], 2);
    const auto facture = Facture::de(Calcul::de(catalogue->donnees(), bon, jour), catalogue->donnees().reglages,
                                     QStringLiteral("2026-001"), jour,
                                     QStringLiteral("Ada Exemple\n3 rue de l’Exemple\n00000 Exempleville"));
    if (!facture)
        qFatal("La commande mesurée n’a pas de facture");

    QByteArray pdf = ImpressionFacture::pdf(*facture); // loads the fonts
    QList<double> durees;
    while (durees.size() < factures) {
        const auto debut = Horloge::now();
        pdf = ImpressionFacture::pdf(*facture);
        durees.append(std::chrono::duration<double, std::milli>(Horloge::now() - debut).count());
    }
    Releve duree = releve(QStringLiteral("Facture en PDF"), QStringLiteral("ms"), durees);
    duree.but = 8;
    return {duree,
            {.nom = QStringLiteral("Facture, taille du PDF"),
             .unite = QStringLiteral("Kio"),
             .mediane = static_cast<double>(pdf.size()) / unKio,
             .but = 40}};
}

} // namespace Quillet
