#include "bench/Echantillon.h"
#include "bench/Mesures.h"
#include "bench/Programme.h"

#include <chrono>

namespace Quillet {

namespace {

constexpr int repetitions = 15;

struct Departs
{
    QList<double> premiereImage;
    QList<double> derniereImage;
    QList<double> memoire;
    QList<double> memoireAuPlusHaut;
};

QList<double> demarrer(const QString &fenetre, const QStringList &donnees = {})
{
    const std::chrono::nanoseconds depart = std::chrono::steady_clock::now().time_since_epoch();
    return Programme::valeurs(QStringLiteral("bench-depart"),
                              QStringList{fenetre, QString::number(depart.count())} + donnees);
}

void ajouter(Departs &departs, const QList<double> &valeurs)
{
    constexpr double kioParMio = 1024;
    departs.premiereImage.append(valeurs.at(0));
    departs.derniereImage.append(valeurs.at(1));
    departs.memoire.append(valeurs.at(2) / kioParMio);
    departs.memoireAuPlusHaut.append(valeurs.at(3) / kioParMio);
}

} // namespace

QList<Releve> mesurerDepart()
{
    const QString vide = QStringLiteral("vide");
    const QString quillet = QStringLiteral("quillet");
    const Echantillon siens(2'000, Echantillon::Images::avec, Origine::utilisateur);
    const QStringList leurDossier{siens.stockage().dossier().path()};
    // The first ones fill the system's caches.
    demarrer(vide);
    demarrer(quillet);
    demarrer(quillet, leurDossier);
    Departs sansRien;
    Departs reels;
    Departs nombreux;
    for (int i = 0; i < repetitions; ++i) {
        ajouter(sansRien, demarrer(vide));
        ajouter(reels, demarrer(quillet));
        ajouter(nombreux, demarrer(quillet, leurDossier));
    }
    const auto comparer = [&](const Departs &departs, const QString &suite) {
        const auto ligne = [&](const QString &mesure, const QString &unite, QList<double> Departs::*champ, double but) {
            Releve compare = releve(QStringLiteral("Départ, ") + mesure + suite, unite, departs.*champ);
            compare.reference = centile(sansRien.*champ, 0.5);
            compare.but = but;
            return compare;
        };
        const QString ms = QStringLiteral("ms");
        const QString mio = QStringLiteral("Mio");
        return QList{ligne(QStringLiteral("première image"), ms, &Departs::premiereImage, 2),
                     ligne(QStringLiteral("couvertures peintes"), ms, &Departs::derniereImage, 2),
                     ligne(QStringLiteral("mémoire, couvertures peintes"), mio, &Departs::memoire, 1.7),
                     ligne(QStringLiteral("mémoire au plus haut"), mio, &Departs::memoireAuPlusHaut, 1.7)};
    };
    return comparer(reels, {}) + comparer(nombreux, QStringLiteral(", 2 000 livres à soi"));
}

} // namespace Quillet
