#include "bench/fautes/Appels.h"
#include "bench/fautes/Bilan.h"
#include "bench/fautes/Maison.h"
#include "bench/fautes/Parties.h"
#include "bench/fautes/Processus.h"
#include "echanges/Archive.h"
#include "echanges/Bagage.h"
#include "echanges/Copies.h"
#include "echanges/Reprise.h"

#include <QRandomGenerator>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <thread>

namespace Quillet {

namespace {

using Etat = QMap<QString, QByteArray>;

enum class Fin { fait, refuse, commence, tue };

// One gesture, tried on many folders; built by doing it once without any fault.
class EssaiDeMaison
{
public:
    EssaiDeMaison(const Ressources &ressources, const GesteDeMaison &geste, const QString &travail)
        : ressources_(ressources), geste_(geste), archive_(travail + QStringLiteral("/archive.zip"))
    {
        const Maison autre(ressources_, travail + QStringLiteral("/autre"));
        autre.installer(2);
        Archive::ecrire(archive_, Bagage::de(autre.demeure(), QDate(2026, 3, 1)));
        const Maison temoin(ressources_, travail + QStringLiteral("/temoin"));
        temoin.installer(geste_.rang);
        avant_ = temoin.etat();
        geste_.faire(temoin, archive_);
        apres_ = temoin.etat();
        for (const Maison &maison : {autre, temoin})
            QDir(maison.dossier()).removeRecursively();
    }

    [[nodiscard]] const char *nom() const { return geste_.nom; }

    void preparer(const QString &dossier) const
    {
        QDir(dossier).removeRecursively();
        Maison(ressources_, dossier).installer(geste_.rang);
    }

    [[nodiscard]] Fin faire(const QString &dossier) const
    {
        try {
            geste_.faire(Maison(ressources_, dossier), archive_);
            return Fin::fait;
        } catch (const RepriseInachevee &) {
            return Fin::commence;
        } catch (const Echec &erreur) {
            dit_ = erreur.texte();
            return Fin::refuse;
        }
    }

    // The fault is over, a program starts there: what does it find?
    [[nodiscard]] Essai::Issue relever(const QString &dossier, Fin fin) const
    {
        const QString faute = fauteDe(Maison(ressources_, dossier), fin);
        if (!faute.isEmpty())
            std::fprintf(stderr, "%s : %s (%s)\n", geste_.nom, qPrintable(faute), qPrintable(dit_));
        return !faute.isEmpty() ? Essai::Issue::faute : fin == Fin::fait ? Essai::Issue::reussi : Essai::Issue::refuse;
    }

private:
    [[nodiscard]] QString fauteDe(const Maison &maison, Fin fin) const
    {
        if (fin == Fin::refuse && (dit_.isEmpty() || dit_.contains(QStringLiteral("erreur du système"))))
            return QStringLiteral("refusé sans dire pourquoi");
        maison.demarrer();
        const Etat trouve = maison.etat();
        const bool ancien = trouve == avant_ && (fin == Fin::refuse || fin == Fin::tue);
        const bool nouveau = trouve == apres_ && fin != Fin::refuse;
        if (!ancien && !nouveau && trouve != (fin == Fin::refuse ? avant_ : apres_))
            return QStringLiteral("ni l’ancien ni le nouvel état : ") + trouve.keys().join(u' ');
        const QString copies = fauteDesCopies(maison, fin);
        if (!copies.isEmpty())
            return copies;
        if (faire(maison.dossier().path()) != Fin::fait || maison.etat() != apres_)
            return QStringLiteral("ensuite, le geste ne se fait plus");
        return {};
    }

    // Every one can be taken up, and holds the state of before.
    [[nodiscard]] QString fauteDesCopies(const Maison &maison, Fin fin) const
    {
        const QList<Copie> copies = Copies(maison.demeure()).liste();
        if (copies.isEmpty() && fin != Fin::refuse && fin != Fin::tue && geste_.laisseUneCopie)
            return QStringLiteral("fait, sans copie");
        for (const Copie &copie : copies) {
            const auto reprise = maison.preparer(copie.chemin);
            const QByteArray livres =
                reprise->aDesDonneesPropres() ? Json::encoder(reprise->donnees().livres) : QByteArray();
            if (livres != avant_.value(QStringLiteral("donnees/livres.json")) || !reprise->remarques().isEmpty()
                || reprise->series().isEmpty())
                return QStringLiteral("la copie n’est pas entière");
        }
        return {};
    }

    Ressources ressources_;
    GesteDeMaison geste_;
    QString archive_;
    Etat avant_;
    Etat apres_;
    mutable QString dit_;
};

int jouer(const EssaiDeMaison &essai, const QString &dossier)
{
    Appels::seLaisserSuivre();
    Appels::borne();
    const Fin fin = essai.faire(dossier);
    Appels::borne();
    return int(essai.relever(dossier, fin));
}

constexpr std::array disques{Appels::Disque::local, Appels::Disque::sansAnonymes};

// Every call fails in turn; `erreur` 0: the program is killed there.
void aChaqueAppel(const EssaiDeMaison &essai, const QString &dossier, Appels::Disque disque, int erreur, Bilan &bilan)
{
    for (int rang = 1;; ++rang) {
        essai.preparer(dossier);
        const pid_t enfant = lancer([&] { return jouer(essai, dossier); });
        const auto suivi = Appels::suivre(enfant, disque, rang, erreur);
        if (suivi.appel < 0 && erreur == 0)
            break;
        int fin = WIFEXITED(suivi.statut) ? WEXITSTATUS(suivi.statut) : -1;
        if (erreur == 0)
            fin = dansUnProcessus([&] { return int(essai.relever(dossier, Fin::tue)); });
        if (fin == int(Essai::Issue::reussi) && suivi.enSuspens)
            fin = int(Essai::Issue::faute);
        if (!bilan.compter(fin))
            std::fprintf(stderr, "  %s, appel %d, %s, %s%s\n", essai.nom(), rang, Appels::nom(suivi.appel).constData(),
                         erreur ? strerrorname_np(erreur) : "arrêt", suivi.enSuspens ? ", en suspens" : "");
        if (suivi.appel < 0)
            break;
    }
}

void auHasard(const EssaiDeMaison &essai, const QString &dossier, Bilan &bilan)
{
    constexpr int arrets = 300;
    for (int arret = 0; arret < arrets; ++arret) {
        essai.preparer(dossier);
        const pid_t enfant = lancer([&] { return int(essai.faire(dossier)); });
        std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(12'000)));
        kill(enfant, SIGKILL);
        const int fait = attendre(enfant);
        const Fin fin = fait == int(Fin::fait) ? Fin::fait : Fin::tue;
        bilan.compter(dansUnProcessus([&] { return int(essai.relever(dossier, fin)); }));
    }
}

// In a process of its own, whose mounts go with it.
int surUnDisquePlein(const QList<EssaiDeMaison> &essais, const QString &place)
{
    QDir().mkpath(place);
    const QByteArray chemin = place.toUtf8();
    if (unshare(geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0
        || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
        || mount("tmpfs", chemin.constData(), "tmpfs", 0, "size=8m") != 0) {
        std::printf("disque plein : pas permis ici\n");
        return 0;
    }
    Bilan bilan;
    const auto limiter = [&](int kibioctets) {
        const QByteArray taille = "size=" + QByteArray::number(kibioctets) + 'k';
        return mount("tmpfs", chemin.constData(), "tmpfs", MS_REMOUNT, taille.constData()) == 0;
    };
    const QString dossier = place + QStringLiteral("/Quillet");
    for (const EssaiDeMaison &essai : essais)
        for (int kibioctets = 4; kibioctets <= 600; kibioctets += 4) {
            limiter(8192);
            essai.preparer(dossier);
            if (!limiter(kibioctets)) // what stands there takes more
                continue;
            if (!bilan.compter(dansUnProcessus([&] {
                    const Fin fin = essai.faire(dossier);
                    limiter(8192);
                    return int(essai.relever(dossier, fin));
                })))
                std::fprintf(stderr, "  %s, disque de %d Kio\n", essai.nom(), kibioctets);
        }
    std::printf("disque plein, par pages de 4 Kio : %s\n", bilan.texte().constData());
    return bilan.fautes > 0;
}

} // namespace

int reprises(const Ressources &ressources, const QString &travail)
{
    QList<EssaiDeMaison> essais;
    for (const GesteDeMaison &geste : gestesDeMaison())
        essais.append(EssaiDeMaison(ressources, geste, travail));
    const QString dossier = travail + QStringLiteral("/Quillet");
    int fautes = 0;
    const auto essayer = [&](const char *quoi, const auto &essai) {
        Bilan bilan;
        essai(bilan);
        std::printf("%s : %s\n", quoi, bilan.texte().constData());
        std::fflush(stdout);
        fautes += bilan.fautes;
    };
    essayer("arrêts au hasard", [&](Bilan &bilan) {
        for (const EssaiDeMaison &essai : essais)
            auHasard(essai, dossier, bilan);
    });
    fautes += dansUnProcessus([&] { return surUnDisquePlein(essais, travail + QStringLiteral("/disque")); }) != 0;
    essayer("arrêts, un à chaque appel", [&](Bilan &bilan) {
        for (const EssaiDeMaison &essai : essais)
            for (const Appels::Disque disque : disques)
                aChaqueAppel(essai, dossier, disque, 0, bilan);
    });
    essayer("appels mis en échec", [&](Bilan &bilan) {
        for (const EssaiDeMaison &essai : essais)
            for (const Appels::Disque disque : disques)
                for (const int erreur : {ENOSPC, EIO, EACCES, EMFILE})
                    aChaqueAppel(essai, dossier, disque, erreur, bilan);
    });
    return fautes;
}

} // namespace Quillet
