#include "bench/Memoire.h"
#include "bench/Temoin.h"
#include "composants/bureau/Bureau.h"
#include "ui/Fenetre.h"
#include "ui/InstanceUnique.h"
#include "ui/QuilletApp.h"
#include "visite/HorsReseau.h"

#include <QTimer>

#include <cstdio>

using namespace Quillet;

// bench-depart vide|quillet <start, in nanoseconds of the monotonic clock> [folder of the user's data]: opens one
// window, waits until it stops changing, prints when its first and last images were done (ms) and what memory it holds
// and held (KiB), and leaves.
namespace {

using namespace std::chrono_literals;

constexpr QSize taille(1320, 860);
constexpr auto calme = 200ms; // shorter than a caret's blink

// Wherever the pointer happens to lie, no cover lifts under it: that motion is not part of the start.
class SansPointeur : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *evenement) override
    {
        return evenement->type() == QEvent::Enter || evenement->type() == QEvent::MouseMove;
    }
};

double depuis(std::chrono::nanoseconds depart, Temoin::Horloge::time_point instant)
{
    return std::chrono::duration<double, std::milli>(instant.time_since_epoch() - depart).count();
}

int attendreEtRapporter(const Temoin &temoin, std::chrono::nanoseconds depart)
{
    QTimer ronde;
    QObject::connect(&ronde, &QTimer::timeout, &temoin, [&temoin] {
        if (temoin.derniereImage() && Temoin::Horloge::now() - *temoin.derniereImage() > calme)
            Temoin::quit();
    });
    ronde.start(20ms);
    Temoin::exec();
    std::printf("%.3f %.3f %.0f %.0f\n", depuis(depart, *temoin.image()), depuis(depart, *temoin.derniereImage()),
                Memoire::residente(), Memoire::auPlusHaut());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    Temoin temoin(argc, argv);
    const QStringList arguments = Temoin::arguments();
    const std::chrono::nanoseconds depart(arguments.value(2).toLongLong());
    if (arguments.value(1) == QStringLiteral("vide")) {
        QWidget fenetre;
        fenetre.resize(taille);
        fenetre.show();
        return attendreEtRapporter(temoin, depart);
    }
    // From here on, as in the real program's main().
    Bureau bureau;
    QuilletApp::preparer();
    QuilletApp::suivre(bureau);
    InstanceUnique instance(InstanceUnique::communDeLUtilisateur());
    if (!instance.prendreLaPlace({}))
        return 1;
    const Stockage stockage = arguments.size() > 3 ? Stockage(QDir(arguments.at(3))) : Stockage::deLUtilisateur();
    QuilletApp quillet(
        Ressources::enVigueur(stockage.donneesPersonnelles()), stockage, Preferences::deLUtilisateur(),
        [] { return QDate::currentDate(); }, horsReseau());
    bureau.relever();
    temoin.installEventFilter(new SansPointeur(&temoin)); // the last one sees events first
    quillet.fenetre().show();
    return attendreEtRapporter(temoin, depart);
}
