#include "bench/fautes/Bilan.h"
#include "bench/fautes/Parties.h"
#include "bench/fautes/Processus.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace Quillet {

namespace {

struct Obstacle
{
    const char *nom;
    const char *fermer;
    const char *ouvrir;
};

// Commands of the shell, in the folder above the data folder.
constexpr auto obstacles = std::to_array<Obstacle>({
    {"dossier protégé", "chmod 555 Quillet .", "chmod 755 . Quillet"},
    {"fichiers protégés", "chmod 444 Quillet/*", "chmod 644 Quillet/*"},
    {"fichiers illisibles", "chmod 000 Quillet/*", "chmod 644 Quillet/*"},
    {"dossier fermé", "chmod 000 Quillet", "chmod 755 Quillet"},
});

void commander(const char *commande, const QString &dossier)
{
    const QString texte =
        QStringLiteral("cd %1 && %2 2>/dev/null").arg(QFileInfo(dossier).path(), QString::fromUtf8(commande));
    if (std::system(qPrintable(texte)) < 0) // what is not there cannot be changed
        throw std::runtime_error("sh");
}

// The folder goes while the program runs: the next save makes it again, or says why not.
QString disparition(const Ressources &ressources, const QString &dossier, const Geste &geste, bool protege)
{
    Poste poste(ressources, dossier);
    geste.faire(poste, 5);
    const Contenu avant(poste);
    QDir(dossier).removeRecursively();
    try {
        if (protege)
            commander("chmod 555 .", dossier);
        geste.faire(poste, 6);
        if (protege)
            return QStringLiteral("réussi, sans dossier");
    } catch (const ErreurStockage &) {
        if (!protege || (Contenu(poste).livres != avant.livres || Contenu(poste).frais != avant.frais))
            return QStringLiteral("refusé à tort, ou changé en mémoire");
        commander("chmod 755 .", dossier);
        geste.faire(poste, 7);
    }
    const bool pareil = Contenu(Poste(ressources, dossier)).memesDonnees(Contenu(poste));
    return pareil ? QString() : QStringLiteral("le dossier ne tient pas ce que tient la mémoire");
}

// Nobody in particular: protections do not hold root back.
int sansDroits(const Ressources &ressources, const QString &travail)
{
    constexpr uid_t personne = 65534;
    if (geteuid() == 0 && (chown(qPrintable(travail), personne, personne) != 0 || setgid(personne) || setuid(personne)))
        throw std::runtime_error("setuid");
    const QString dossier = QDir(travail).filePath(QStringLiteral("essai/Quillet"));
    Bilan bilan;
    const auto compter = [&](int trouve, const char *quoi) {
        if (!bilan.compter(trouve))
            std::fprintf(stderr, "  %s\n", quoi);
    };
    for (const Essai &essai : essais(ressources, QDir(travail).filePath(QStringLiteral("temoin"))))
        for (const Obstacle &obstacle : obstacles) {
            QDir(dossier).removeRecursively();
            QDir().mkpath(QFileInfo(dossier).path());
            compter(dansUnProcessus([&] {
                        return int(essai.jouer(
                            dossier, [&] { commander(obstacle.fermer, dossier); },
                            [&] { commander(obstacle.ouvrir, dossier); }));
                    }),
                    obstacle.nom);
        }
    for (const Geste &geste : gestesEntiers())
        for (const bool protege : {false, true}) {
            QDir(dossier).removeRecursively();
            const auto faire = [&] {
                const QString faute = disparition(ressources, dossier, geste, protege);
                if (!faute.isEmpty())
                    std::fprintf(stderr, "%s : %s\n", geste.nom, qPrintable(faute));
                return int(!faute.isEmpty() ? Essai::Issue::faute
                           : protege        ? Essai::Issue::refuse
                                            : Essai::Issue::reussi);
            };
            compter(dansUnProcessus(faire), "dossier disparu");
        }
    std::printf("dossiers protégés, illisibles ou disparus : %s\n", bilan.texte().constData());
    return bilan.fautes > 0;
}

} // namespace

int dossiersPerdus(const Ressources &ressources, const QString &travail)
{
    return dansUnProcessus([&] { return sansDroits(ressources, travail); }) != 0;
}

} // namespace Quillet
