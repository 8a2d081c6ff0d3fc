#include "bench/fautes/Appels.h"
#include "bench/fautes/Bilan.h"
#include "bench/fautes/DisqueIncertain.h"
#include "bench/fautes/Parties.h"
#include "bench/fautes/Processus.h"

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <stdexcept>

namespace Quillet {

namespace {

// What the disk may hold when the power goes during the gesture, and once it is told as done.
struct Etats
{
    QSet<Arbre> pendant;
    QSet<Arbre> apres;
    int coupures = 0;
};

Etats jouer(const Essai &essai, const QString &racine, const QString &dossier, Appels::Disque disque)
{
    const auto armer = [] {
        Appels::seLaisserSuivre();
        Appels::borne();
    };
    const pid_t enfant = lancer([&] { return int(essai.jouer(dossier, armer, Appels::borne)); });
    Etats etats;
    std::optional<DisqueIncertain> incertain;
    const int statut = Appels::observer(enfant, disque, [&](const Appels::Fait &fait) {
        if (fait.appel < 0) {
            incertain.emplace(racine);
        } else {
            incertain->regarder();
            if (fait.reussi && Appels::synchronise(fait.appel))
                incertain->prendre(QStringLiteral("/proc/%1/fd/%2").arg(enfant).arg(fait.premier));
        }
        etats.pendant.unite(incertain->etats());
        etats.apres = incertain->etats();
        ++etats.coupures;
    });
    if (!WIFEXITED(statut) || WEXITSTATUS(statut) != int(Essai::Issue::reussi))
        throw std::runtime_error("le geste sans faute");
    return etats;
}

void poser(const Arbre &arbre, const QString &racine)
{
    QDir(racine).removeRecursively();
    bool pose = QDir().mkpath(racine);
    for (const auto &[nom, contenu] : arbre.asKeyValueRange()) {
        const QString chemin = QDir(racine).filePath(nom);
        QFile fichier(chemin);
        pose = pose
               && (contenu ? fichier.open(QIODevice::WriteOnly) && fichier.write(*contenu) == contenu->size()
                           : QDir().mkpath(chemin));
    }
    if (!pose)
        throw std::runtime_error("poser");
}

constexpr std::array disques{Appels::Disque::local, Appels::Disque::sansAnonymes};

} // namespace

int coupures(const Ressources &ressources, const QString &travail)
{
    const QString racine = QDir(travail).filePath(QStringLiteral("disque"));
    const QString dossier = racine + QStringLiteral("/maison/Quillet"); // neither of which is there at first
    Bilan bilan;
    int points = 0;
    const auto relever = [&](const Essai &essai, const QSet<Arbre> &etats, Essai::Arret arret) {
        for (const Arbre &arbre : etats) {
            poser(arbre, racine);
            if (!bilan.compter(dansUnProcessus([&] { return int(essai.releverApresArret(dossier, arret)); })))
                std::fprintf(stderr, "  le disque tient %s\n", qPrintable(arbre.keys().join(u' ')));
        }
    };
    for (const Essai &essai : essais(ressources, QDir(travail).filePath(QStringLiteral("temoin"))))
        for (const Appels::Disque disque : disques) {
            QDir(racine).removeRecursively();
            QDir().mkpath(racine);
            const Etats etats = jouer(essai, racine, dossier, disque);
            points += etats.coupures;
            relever(essai, etats.pendant, Essai::Arret::pendant);
            relever(essai, etats.apres, Essai::Arret::apres);
        }
    std::printf("%d coupures de courant, une après chaque appel : %d états du disque, %s\n", points,
                bilan.reussis + bilan.refuses + bilan.fautes, bilan.texte().constData());
    return bilan.fautes;
}

} // namespace Quillet
