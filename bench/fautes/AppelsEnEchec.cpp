#include "bench/fautes/Appels.h"
#include "bench/fautes/Bilan.h"
#include "bench/fautes/Parties.h"
#include "bench/fautes/Processus.h"

#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace Quillet {

namespace {

using ParAppel = QMap<QByteArray, int>; // how often each was touched

QString dossierDEssai(const QString &travail)
{
    QString dossier = QDir(travail).filePath(QStringLiteral("Quillet"));
    QDir(dossier).removeRecursively();
    return dossier;
}

Appels::Suivi jouerSousSuivi(const Essai &essai, const QString &dossier, Appels::Disque disque, int rang, int erreur)
{
    const auto armer = [] {
        Appels::seLaisserSuivre();
        Appels::borne();
    };
    const pid_t enfant = lancer([&] { return int(essai.jouer(dossier, armer, Appels::borne)); });
    return Appels::suivre(enfant, disque, rang, erreur);
}

int fin(const Essai &essai, const Appels::Suivi &suivi)
{
    const int fin = WIFEXITED(suivi.statut) ? WEXITSTATUS(suivi.statut) : -1;
    if (fin != int(Essai::Issue::reussi) || !suivi.enSuspens)
        return fin;
    std::fprintf(stderr, "%s : réussi, sans que le disque ait tout pris\n", qPrintable(essai.nom()));
    return int(Essai::Issue::faute);
}

void dire(const char *quoi, const ParAppel &parAppel, const Bilan &bilan)
{
    int appels = 0;
    QByteArray detail;
    for (const auto &[nom, nombre] : parAppel.asKeyValueRange()) {
        appels += nombre;
        detail += ' ' + nom + ' ' + QByteArray::number(nombre);
    }
    std::printf("%d %s (%s) : %s\n", appels, quoi, detail.trimmed().constData(), bilan.texte().constData());
}

constexpr std::array disques{Appels::Disque::local, Appels::Disque::sansAnonymes};

} // namespace

int appelsEnEchec(const Ressources &ressources, const QString &travail)
{
    Bilan bilan;
    ParAppel parAppel;
    const auto mettreEnEchec = [&](const Essai &essai, Appels::Disque disque, int erreur) {
        for (int rang = 1;; ++rang) {
            const auto suivi = jouerSousSuivi(essai, dossierDEssai(travail), disque, rang, erreur);
            if (!bilan.compter(fin(essai, suivi)))
                std::fprintf(stderr, "  appel %d, %s, %s\n", rang, Appels::nom(suivi.appel).constData(),
                             strerrorname_np(erreur));
            if (suivi.appel < 0)
                break; // there were fewer calls: all went well
            ++parAppel[Appels::nom(suivi.appel)];
        }
    };
    for (const Essai &essai : essais(ressources, dossierDEssai(travail)))
        for (const Appels::Disque disque : disques)
            for (const int erreur : {ENOSPC, EIO, EACCES, EMFILE})
                mettreEnEchec(essai, disque, erreur);
    dire("appels mis en échec", parAppel, bilan);
    return bilan.fautes;
}

int arretsAChaqueAppel(const Ressources &ressources, const QString &travail)
{
    Bilan bilan;
    ParAppel parAppel;
    int restes = 0;
    const auto arreter = [&](const Essai &essai, Appels::Disque disque) {
        for (int rang = 1;; ++rang) {
            const QString dossier = dossierDEssai(travail);
            const auto suivi = jouerSousSuivi(essai, dossier, disque, rang, 0);
            if (suivi.appel < 0)
                break;
            ++parAppel[Appels::nom(suivi.appel)];
            restes += nombreDeRestes(dossier);
            if (!bilan.compter(
                    dansUnProcessus([&] { return int(essai.releverApresArret(dossier, Essai::Arret::pendant)); })))
                std::fprintf(stderr, "  arrêté à l’appel %d, %s\n", rang, Appels::nom(suivi.appel).constData());
        }
    };
    for (const Essai &essai : essais(ressources, dossierDEssai(travail)))
        for (const Appels::Disque disque : disques)
            arreter(essai, disque);
    dire("arrêts, un à chaque appel", parAppel, bilan);
    std::printf("    %d laissent un reste temporaire\n", restes);
    return bilan.fautes;
}

} // namespace Quillet
