#include "bench/fautes/Bilan.h"
#include "bench/fautes/Parties.h"
#include "bench/fautes/Processus.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace Quillet {

namespace {

// A file that takes all the room a small disk has left, but for what is wanted.
class Lest
{
public:
    explicit Lest(const QString &disque)
        : fd_(open(qPrintable(disque + QStringLiteral("/lest")), O_RDWR | O_CREAT, 0600))
    {
    }
    void laisser(off_t octets) const
    {
        const QByteArray bloc(1024, 'x');
        off_t taille = lseek(fd_, 0, SEEK_END);
        while (write(fd_, bloc.constData(), std::size_t(bloc.size())) > 0)
            taille = lseek(fd_, 0, SEEK_END);
        if (taille < octets || ftruncate(fd_, taille - octets) != 0 || syncfs(fd_) != 0)
            throw std::runtime_error("lest");
    }

private:
    int fd_;
};

struct Disque
{
    const char *nom;
    off_t pas; // what it hands out at once
    int niveaux;
    bool (*monter)(const QString &place);
};

bool memoire(const QString &place)
{
    return mount("tmpfs", qPrintable(place), "tmpfs", 0, "size=160k") == 0;
}

// Rooms as small as a disk's can be; only root may mount it.
bool image(const QString &place)
{
    const QString fichier = place + QStringLiteral(".img");
    const QString commande =
        QStringLiteral("truncate -s 2M %1 && /sbin/mkfs.ext4 -q -b 1024 -m 0 %1 && mount -o loop %1 %2");
    return geteuid() == 0 && std::system(qPrintable(commande.arg(fichier, place))) == 0;
}

constexpr std::array<Disque, 2> disques{
    {{"tmpfs par pages de 4 Kio", 4096, 13, memoire}, {"ext4 par blocs de 1 Kio", 1024, 41, image}}};

// In a process of its own, whose mounts go with it.
int remplir(const Ressources &ressources, const QString &travail, const Disque &disque)
{
    const QString place = QDir(travail).filePath(QStringLiteral("disque"));
    QDir().mkpath(place);
    if (unshare(geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0
        || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 || !disque.monter(place)) {
        std::printf("%s : pas permis ici\n", disque.nom);
        return 0;
    }
    const QString dossier = place + QStringLiteral("/Quillet");
    const Lest lest(place);
    Bilan bilan;
    const QList<Essai> tous = essais(ressources, QDir(travail).filePath(QStringLiteral("temoin")));
    for (const Essai &essai : tous)
        for (int niveau = 0; niveau < disque.niveaux; ++niveau) {
            QDir(dossier).removeRecursively();
            const int trouve = dansUnProcessus([&] {
                return int(essai.jouer(
                    dossier, [&] { lest.laisser(niveau * disque.pas); }, [&] { lest.laisser(qint64{64} * 1024); }));
            });
            if (!bilan.compter(trouve))
                std::fprintf(stderr, "  %s, %d libres\n", disque.nom, niveau);
        }
    std::printf("%s : %d niveaux pour chacun de %d essais : %s\n", disque.nom, disque.niveaux, int(tous.size()),
                bilan.texte().constData());
    return bilan.fautes > 0;
}

} // namespace

int disquesPleins(const Ressources &ressources, const QString &travail)
{
    int fautes = 0;
    for (const Disque &disque : disques)
        fautes += dansUnProcessus([&] { return remplir(ressources, travail, disque); }) != 0;
    return fautes;
}

} // namespace Quillet
